// json_performance: the results of Calculate Performance as JSON.
#pragma once

#include "kvt/json_fields.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// All scalars, the axes of the grid and the tables as arrays [speed][pressure]; with `full` also
/// the arrays over the speeds or the pressures and those over the rotation angle, cut to their used
/// length.
json json_performance(const perf_results& results, bool full);

}  // namespace kvt
