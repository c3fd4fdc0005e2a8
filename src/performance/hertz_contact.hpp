// The contact stress between the rotors, and the load that contact and pressure put on the shaft.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// Contact geometry, hertz_stress and hertz_sliding, hertz_max and cutter_r, then the side load of
/// every grid point. Needs contact_force and the lobe arrays. Source: docs/formulas/contact.md.
void calc_hertz_and_side_load(const design_params& design, const perf_inputs& inputs,
                              perf_results& results);

/// combined_modulus = 1 / ((1 - nu_i^2) / E_i + (1 - nu_o^2) / E_o), MPa.
double combined_modulus(const perf_inputs& inputs);

/// pressure_angle, troch_curv_r, inner_curv_r and equiv_r at a = 1 .. 179 degrees (Euler-Savary):
///     1 / troch_curv_r = 1 / d - (1 / arm_base - 1 / n_ecc) / sin(pressure_angle)      d =
///     lobe_arm_dist of lobe 1 inner_curv_r = d - troch_curv_r - radouter 1 / equiv_r = 1 /
///     inner_curv_r + 1 / radouter
void set_contact_geometry(double radouter, std::size_t a, perf_results& results);

/// hertz_stress = sqrt(combined_modulus F / (thick TWO_PI_P equiv_r)), MPa, and hertz_sliding,
/// which takes the sliding velocity and the speed of index 1 at every speed. Where equiv_r is
/// negative both keep what they had; hertz_max still looks at it.
void set_contact_stress(double thick, std::size_t a, perf_results& results);

/// The tightest concave curvature: inner_curv_r at 1 degree, then every negative one nearer to 0.
/// cutter_r is cut to two decimals downwards.
double tightest_concave_radius(const perf_results& results);

}  // namespace kvt
