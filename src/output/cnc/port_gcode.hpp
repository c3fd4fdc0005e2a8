// The outline of a port and of the metering groove as arcs and lines of a milling program.
#pragma once

#include "geometry/point2.hpp"
#include "output/port_contours.hpp"

#include <optional>
#include <vector>

namespace kvt {

/// A move of the tool: along a straight line, or along an arc the short way round.
enum class move_kind { line_g01, clockwise_g02, counterclockwise_g03 };

struct tool_move {
    move_kind kind;
    point2 end;
    double radius = 0.0;  ///< of an arc
};

/// Where a contour starts, and its moves back to that point.
struct tool_contour {
    point2 start;
    std::vector<tool_move> moves;
};

/// Fillet, inner arc, fillet, end side, fillet, outer arc, fillet, start side, from the end of the
/// start side; of what the outline was built with;
/// without a fillet radius no fillets. The outline of the inlet runs counterclockwise:
/// G03 but for its inner arc; that of the outlet runs clockwise, and the shadow's the other way
/// than its port's.
tool_contour port_moves(const port_params& ports, port_side side, bool shadow);

/// Inner path, fillet, nose line if there is one, fillet, outer path, outer tail, the line across,
/// inner tail, from groove_a. Throws subscript_out_of_range without a groove.
tool_contour groove_moves(const port_params& ports);

}  // namespace kvt
