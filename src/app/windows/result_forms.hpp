// The forms that show performance results, closed when the results are stale.
#pragma once

#include "core/user.hpp"

namespace kvt {

/// Unloads perf_res and the seven chart forms.
void unload_result_forms(user& person);

/// Unloads the seven chart forms.
void unload_chart_forms(user& person);

}  // namespace kvt
