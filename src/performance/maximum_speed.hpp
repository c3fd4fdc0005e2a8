// The highest speed without cavitation: by the velocity of the rotor tip, or by that of the fluid
// in the inlet port.
#pragma once

#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

#include <optional>

namespace kvt {

/// Fills fill_velocity .. max_speed_rpm; needs dyn_visc and tip_radius.
///     fill_velocity = sqrt(2 (101300 - pv) / density)      a chamber fills no faster
///     tip_speed_rpm = (fill_velocity 1000 / tip_radius) (60 / TWO_PI_P)
///     port_velocity = 2000 dyn_visc / (density port_equiv_r)      Reynolds number 2000 on the
///     radius port_speed_rpm = port_flow / (capacity_cc / 60000000)
///     max_speed_rpm = the lower of tip_speed_rpm and port_speed_rpm      kept when they are equal
/// An end angle of the inlet that is 0 counts as 180. Throws run_time_error for a vapour pressure
/// above the atmosphere's 101300 Pa, and for a port without area. Source: docs/formulas/flow.md,
/// "Maximum speed".
void calc_maximum_speed(const rotor_profiles& rotors, const port_params& ports,
                        const perf_inputs& inputs, perf_results& results);

/// The sectors of the inlet's radii, mm2: what lies between them is the area of the port.
struct inlet_sectors {
    double outer_mm2 = 0.0;
    double inner_mm2 = 0.0;
};
inlet_sectors sectors_of_inlet(const port_params& ports);

/// What holds the speed down; nothing when both limits are equal.
enum class speed_limit { tip_velocity, port_velocity };
std::optional<speed_limit> limit_of_speed(const perf_results& results);

}  // namespace kvt
