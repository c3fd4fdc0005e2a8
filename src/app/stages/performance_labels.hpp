// performance_labels: the texts of perf_res, the form of the headline results, made from the
// numbers of perf_results.
#pragma once

#include "core/app_state.hpp"
#include "core/entries.hpp"
#include "performance/result_quantities.hpp"

namespace kvt {

/// The texts of the results that stand after a step: each number as the table of the results shows
/// it, in the unit and language in force. Kept: when both limits of the speed are equal the texts
/// of the speed stay as they are; performance_labels_test holds it.
void set_performance_labels(const perf_results& results, perf_step after, const app_state& state,
                            labels& texts);

}  // namespace kvt
