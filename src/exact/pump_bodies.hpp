// pump_bodies: the bodies that files of solids hold, with their names, colours and heights.
// Source: docs/file-formats.md, "Exact STEP files (`.stp`)".
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "exact/exact_contour.hpp"
#include "ports/port_params.hpp"

#include <string_view>
#include <vector>

namespace kvt {

/// Shares of red, green and blue, 0 .. 1.
struct colour_shares {
    double red = 0.0, green = 0.0, blue = 0.0;
};

/// A section between two planes.
struct pump_body {
    std::string_view name;
    colour_shares colour;
    exact_contour outline;  ///< counter-clockwise
    exact_contour hole;     ///< clockwise; empty for none
    double bottom = 0.0, top = 0.0;
};

/// z from 0 to thick, without a bore. Throws as inner_rotor_arcs does.
pump_body inner_rotor_body(const design_params& design);
/// z from 0 to thick, its rim the circle of maxdiameter. Throws as outer_rotor_arcs does.
pump_body outer_rotor_body(const design_params& design);

/// What is cut out of the housing, in the order and between the heights of the other STEP files of
/// the ports: inlet and outlet below, outlet and inlet above, groove. One that was never finished
/// or is not ticked is left out.
std::vector<pump_body> porting_bodies(const design_params& design, const port_params& ports,
                                      const entries& boxes);

}  // namespace kvt
