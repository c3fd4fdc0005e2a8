// Whether a closed contour crosses itself.
// Source: docs/formulas/written_files.md, "Contours that cross themselves".
#pragma once

#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// Whether two sides of a closed polygon cross in a point inside both of them. Sides that only
/// touch do not cross. The last point may repeat the first one, and points may stand there twice.
bool crosses_itself(std::vector<point2> contour);

/// The same of several contours: whether any side crosses another, of the same contour or not.
bool any_cross(const std::vector<std::vector<point2>>& contours);

}  // namespace kvt
