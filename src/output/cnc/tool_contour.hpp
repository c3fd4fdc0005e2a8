// The moves of a tool along a contour, as the G-codes of a file say them.
// Source: docs/formulas/written_files.md, "G-code arcs".
#pragma once

#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// Codes and outline are the same path when no point of one lies further than this from the other.
inline constexpr double CONTOUR_TOLERANCE_MM = 0.001;

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

}  // namespace kvt
