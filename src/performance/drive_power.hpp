// The power and torque that the shaft takes, and the efficiencies that follow from them.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

namespace kvt {

/// drive_power = hyd_power + friction_power + face_power_inner + face_power_outer + od_power, W,
/// and drive_torque, N m, for every speed and pressure, with their extremes. Needs sliding_mean.
/// Source: docs/formulas/power.md.
void calc_drive_power(const design_params& design, const rotor_profiles& rotors,
                      const port_params& ports, const perf_inputs& inputs, perf_results& results);

/// mech_eff = (capacity_cc press_pa / 6283185.4) / drive_torque: the theoretical torque over the
/// real one.
void calc_mech_efficiency(const rotor_profiles& rotors, perf_results& results);

/// overall_eff = vol_eff mech_eff.
void calc_overall_efficiency(perf_results& results);

}  // namespace kvt
