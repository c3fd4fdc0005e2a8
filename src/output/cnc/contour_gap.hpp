// How far the codes of a contour lie from the outline that they stand for.
// Source: docs/file-formats.md, "CNC files (`.cnc`)".
#pragma once

#include "geometry/point2.hpp"
#include "output/cnc/port_gcode.hpp"

#include <vector>

namespace kvt {

/// Codes and outline are the same path when no point of one lies further than this from the other.
inline constexpr double CONTOUR_TOLERANCE_MM = 0.001;

/// The larger of the largest distance of an outline's points from the path of the moves and of that
/// path's points, every half degree of an arc, from the outline, mm. A machine takes an arc the
/// short way round; one that does not reach its end counts as infinite.
double contour_gap(const tool_contour& contour, const std::vector<point2>& outline);

}  // namespace kvt
