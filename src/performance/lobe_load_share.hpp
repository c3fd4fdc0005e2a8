// How the lobes share the drive torque, and the contact force on the lobe that is looked at.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// lobe_dist, lobe_angle, lobe_arm_dist and lobe_arm for k = 1 .. N and a = 1 .. 179 degrees, then
/// for every grid point
///     contact_force = arm_1^1.11 (drive_torque 1000) / (arm_1^2.11 + ... + arm_N^2.11)      N,
///     arms in mm
/// so that the torques of all lobes add up to the drive torque. Needs drive_torque. Source:
/// docs/formulas/contact.md. Throws subscript_out_of_range above 100 lobes.
void calc_lobe_load_share(const design_params& design, const rotor_profiles& rotors,
                          perf_results& results);

}  // namespace kvt
