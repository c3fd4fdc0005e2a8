// A smooth closed spline through points, as a CAD package draws one.
#pragma once

#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// Points on the periodic cubic spline through distinct points, with the chord lengths as its
/// parameter: `parts` of each span, its start included.
///     h[i-1] m[i-1] + 2 (h[i-1] + h[i]) m[i] + h[i] m[i+1] = 6 (d[i] - d[i-1])
/// h chord length, d slope of the chord, m second derivative at a point.
std::vector<point2> closed_spline(const std::vector<point2>& points, int parts);

}  // namespace kvt
