// expect_performance: every value of perf_results that a reference file holds, within a relative
// 1e-9.
#pragma once

#include "performance/perf_results.hpp"
#include "performance/result_quantities.hpp"

#include <nlohmann/json_fwd.hpp>
#include <vector>

namespace kvt {

/// The numbers of a result that is a number, a list or a grid, the speeds one behind the other;
/// empty for arrays over an angle.
std::vector<double> numbers_of(const result_quantity& quantity, const perf_results& results);

void expect_performance(const perf_results& results, const nlohmann::json& reference);

}  // namespace kvt
