// exact_flow: flow and volumetric efficiency with the exact displacement in place of the formula's.
// Source: docs/formulas/exact_flow.md, "With leaks".
#pragma once

#include "performance/perf_results.hpp"

namespace kvt {

struct exact_flow {
    perf_grid flow_m3s{};  ///< [speed][pressure]
    perf_grid vol_eff{};   ///< of the exact displacement
};

/// V n - leak_tip - leak_face, the leaks those of the results, not below 0; relative to V n. V in
/// cm3 a revolution, n the speeds of the results.
exact_flow flow_of_volume(double swept_cc, const perf_results& results);

/// The lower of tip_speed_rpm and of the speed at which V fills port_flow, the limits of the
/// results:
///     port_flow 60000000 / V
double max_speed_of_volume(double swept_cc, const perf_results& results);

}  // namespace kvt
