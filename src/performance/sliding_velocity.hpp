// How fast a lobe of the outer rotor slides over the inner rotor.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// For a = 1 .. 360 degrees and every speed:
///     contact_dist = sqrt(n^2 + R^2 - 2 n R cos(a PI_D (N - 1) / (N 180)))      n = N ecc, R
///     trochoid_r, mm sliding_velocity = (contact_dist - radouter) speed_rpm PI_D / (N 30) mm/s
/// sliding_max is the largest above 0, sliding_mean the mean of the 360 values. Source:
/// docs/formulas/contact.md.
void calc_sliding_velocity(const design_params& design, const rotor_profiles& rotors,
                           perf_results& results);

}  // namespace kvt
