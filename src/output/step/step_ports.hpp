// The STEP bodies of the ports: inlet and outlet below the rotors, their upper or shadow halves,
// the metering groove.
// Source: docs/file-formats.md, "STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "output/step/step_prism.hpp"
#include "ports/port_params.hpp"

#include <optional>
#include <span>
#include <vector>

namespace kvt {

enum class step_port { inlet_lower, outlet_lower, outlet_upper, inlet_upper, groove };

/// The five bodies in the order of the file; body number i has its entity numbers raised by 1000000
/// i.
inline constexpr step_port STEP_PORTS[] = {step_port::inlet_lower, step_port::outlet_lower,
                                           step_port::outlet_upper, step_port::inlet_upper,
                                           step_port::groove};
inline constexpr int STEP_BODY_OFFSET = 1'000'000;

/// The distinct points of a closed outline, element `last` repeating element 0, always
/// counter-clockwise: one that runs clockwise is walked backwards from point 0. Empty without an
/// outline (last = 0).
std::vector<point2> port_contour(std::span<const double> x, std::span<const double> y,
                                 std::int16_t last);

/// A body, or nothing when its outline was never finished or its box is not ticked.
///     lower:  depth thick, half of it with the port's *_double_sided; from z = -depth to 0
///     upper:  depth thick/2 with the port's *_double_sided, else thick/5 with shadow_ports; from z
///     = axial_clear +
///             thick upwards
///     groove: groove_depth_mm with metering_groove; from z = -depth to 0
std::optional<step_prism> port_body(step_port port, const design_params& design,
                                    const port_params& ports, const entries& boxes);

/// Appends the body with its offset when there is one.
void write_step_port(text_lines& out, step_port port, const design_params& design,
                     const port_params& ports, const entries& boxes);

}  // namespace kvt
