// Delivered flow and volumetric efficiency.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

namespace kvt {

/// For every speed and pressure: flow_m3s = effective_cc speed_rpm / 60000000 - leak_tip -
/// leak_face, m3/s, and vol_eff = flow_m3s / (capacity_cc speed_rpm / 60000000); both are 0 where
/// they would be negative. The leaks depend on the pressure alone. Extremes by strict comparison.
/// Source: docs/formulas/flow.md.
void calc_flow(const design_params& design, const rotor_profiles& rotors, const port_params& ports,
               const perf_inputs& inputs, perf_results& results);

/// Leak through the tip gap as through a round pipe of the same area, as long as the tip circle:
///     leak_tip = (PI_D / 8) (tip_gap_r^4 / dyn_visc) (p / (2 tip_radius PI_D / 1000)), m3/s, p in
///     Pa
double tip_leak(double tip_gap_r, double tip_radius, double dyn_visc, double press_pa);

/// The share of the capacity that the outlet port uncovers, cm3/rev, not above capacity_cc. r_out
/// and r_in are the port's radii, not beyond the roots of the rotors:
///     (end - start) capacity_cc (r_out - r_in) / ((180 - max - min) (outer_root - radinnroot)),
///     outer angles, degrees
double effective_capacity(const design_params& design, const rotor_profiles& rotors,
                          const port_params& ports);

}  // namespace kvt
