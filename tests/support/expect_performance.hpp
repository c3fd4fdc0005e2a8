// expect_performance: every value of perf_results that a reference file holds, within a relative
// 1e-9.
#pragma once

#include "performance/perf_results.hpp"

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace kvt {

void expect_performance(const perf_results& results, const nlohmann::json& reference);

}  // namespace kvt
