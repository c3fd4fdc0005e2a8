// The pressure wave in the outlet when a chamber opens to it.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

namespace kvt {

/// At the lowest pressure and speed of the grid: chamber rates, outlet geometry, the march of one
/// chamber from the sealed position into the outlet in steps of 0.1 degree, the line back to the
/// lowest pressure, ripple_pressure over a revolution, ripple_percent. Source:
/// docs/formulas/ripple.md. Throws subscript_out_of_range for a march that leaves the arrays: the
/// chamber never reaches the outlet's pressure.
void calc_pressure_ripple(const design_params& design, const rotor_profiles& rotors,
                          const port_params& ports, const perf_inputs& inputs,
                          perf_results& results);

/// port_centre_*, port_edge_*, port_volume, and nose_angle with a metering groove.
void set_outlet_edge(const design_params& design, const port_params& ports,
                     const perf_inputs& inputs, perf_results& results);

/// The march: fills ripple_sector from row 0 on and returns the outlet pressure at its end, Pa.
double march_into_outlet(const design_params& design, const rotor_profiles& rotors,
                         const port_params& ports, const perf_inputs& inputs,
                         perf_results& results);

/// Lifts ripple_sector onto the straight line from the pressure at the march's end back to
/// press_pa[0], over one lobe passage of 3600 / (N - 1) steps, and takes the extremes.
void recover_pressure(double end_pressure, std::int32_t numlobes, perf_results& results);

}  // namespace kvt
