// pump_contours: the named contours that drawings hold.
// Source: docs/file-formats.md, "Exact DXF files (`.dxf`)".
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "exact/exact_contour.hpp"
#include "ports/port_params.hpp"

#include <string_view>
#include <vector>

namespace kvt {

enum class pump_part { inner_rotor, outer_rotor, rim, inlet, outlet, groove };

struct pump_contour {
    pump_part part;
    exact_contour contour;
};

/// "outer-rotor": lower case, a hyphen between words.
std::string_view name_of(pump_part part);

/// Below, a contour that the design does not have is left out.

std::vector<pump_contour> inner_rotor_contours(const design_params& design);
/// The profile within the rim.
std::vector<pump_contour> outer_rotor_contours(const design_params& design);
/// Both rotors as they mesh.
std::vector<pump_contour> pair_contours(const design_params& design);
std::vector<pump_contour> port_contours(const port_params& ports, port_side side);
std::vector<pump_contour> groove_contours(const port_params& ports, const entries& boxes);
/// The rotors, then the ports and the groove over them.
std::vector<pump_contour> whole_pump_contours(const design_params& design, const port_params& ports,
                                              const entries& boxes);

/// Throws invalid_procedure_call when there are none: a file of nothing says nothing.
void check_that_there_are(const std::vector<pump_contour>& contours);

/// Opposite corners.
struct contour_extents {
    point2 low, high;
};

/// What contains all contours: arcs as they are, splines by the corners of their curves. mm
contour_extents extents_of(const std::vector<pump_contour>& contours);

}  // namespace kvt
