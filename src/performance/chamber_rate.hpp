// How fast the volume of a chamber changes over a revolution of the inner rotor.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// chamber_rate[0 .. 3599], m3 a step of 0.1 degree, for the step angle delta in radians:
///     width_ecc ecc_n ((cos d - 1) cos t - sin d sin t) + width_ecc radouter (w(d + t) - w(t)) t =
///     s PI_D / 1800 w(x) = sqrt(ratio^2 + 1 - 2 ratio cos x)      ratio = radouter / trochoid_r
/// First with the step's own angle, then with that angle scaled so that the positive rates add up
/// to the displacement of one chamber, capacity_cc / (N - 1). Source: docs/formulas/ripple.md.
/// Kept: ratio has the lobe radius above; chamber_rate_test holds it.
void set_chamber_rate(const design_params& design, const rotor_profiles& rotors,
                      perf_results& results);

}  // namespace kvt
