// The outline of a port and of the metering groove as arcs and lines of a milling program.
// Source: docs/formulas/written_files.md, "Port arcs".
#pragma once

#include "geometry/circle_arc.hpp"
#include "output/cnc/tool_contour.hpp"
#include "output/port_contours.hpp"

namespace kvt {

/// Fillet, inner arc, fillet, end side, fillet, outer arc, fillet, start side, from the end of the
/// start side; of what the outline was built with;
/// without a fillet radius no fillets. The outline of the inlet runs counterclockwise:
/// G03 but for its inner arc; that of the outlet runs clockwise, and the shadow's the other way
/// than its port's.
tool_contour port_moves(const port_params& ports, port_side side, bool shadow);

/// Inner path, fillet, nose line if there is one, fillet, outer path, outer tail, the line across,
/// inner tail, from groove_a. Throws subscript_out_of_range without a groove.
tool_contour groove_moves(const port_params& ports);

/// The circles of the arcs and fillets that the outline of a port was built with, where they lie in
/// the outline; with sharp corners their fillets have the radius 0.
std::vector<circle> port_circles(const port_params& ports, port_side side, bool shadow);

/// Those of the metering groove: both paths and both corners of the nose.
std::vector<circle> groove_circles(const port_params& ports);

}  // namespace kvt
