// The arc that a machine runs for a G02 or G03 with an R word.
// Source: docs/formulas/written_files.md, "G-code arcs".
#pragma once

#include "geometry/circle_arc.hpp"
#include "output/cnc/tool_contour.hpp"

namespace kvt {

/// Whether the arc of a move reaches its end: the chord is no longer than 2 R, but for 1e-5 mm that
/// rounding may add to half a turn.
bool reaches_end(point2 start, const tool_move& move);

/// The arc of a move, the short way round:
///     centre = (P + Q)/2 +- n sqrt(R^2 - c^2/4)      + for G03, - for G02
/// c chord from P to Q, n its left normal. The move must be an arc that reaches its end.
circle_arc machine_arc(point2 start, const tool_move& move);

}  // namespace kvt
