// How far the codes of a contour lie from the outline that they stand for.
// Source: docs/formulas/written_files.md, "Codes and outline".
#pragma once

#include "geometry/circle_arc.hpp"
#include "output/cnc/tool_contour.hpp"

#include <vector>

namespace kvt {

/// The larger of the largest distance of an outline's points from the path of the moves and of that
/// path's points, every half degree of an arc, from the outline, mm. The circles are those that the
/// outline was built with: a chord of at most one degree between two points of such a circle stands
/// for its arc, every other one for itself. A machine takes an arc the short way round; one that
/// does not reach its end counts as infinite, and so does an outline of one point.
double contour_gap(const tool_contour& contour, const std::vector<point2>& outline,
                   const std::vector<circle>& circles);

}  // namespace kvt
