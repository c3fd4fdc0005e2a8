// Solids as functions that say whether a point lies inside, and what makes them of one another: the
// models that the stand-ins of the CAD packages hold.
#pragma once

#include "geometry/circle_arc.hpp"
#include "geometry/point2.hpp"
#include "geometry/point3.hpp"

#include <functional>
#include <vector>

namespace kvt {

using flat_region = std::function<bool(point2)>;
using solid = std::function<bool(const point3&)>;

/// The inside of a closed polygon, which may cross itself: what a ray leaves an odd number of
/// times.
flat_region polygon_region(const std::vector<point2>& corners);
flat_region circle_region(point2 centre, double radius);
/// The same rule for closed chains of arcs.
flat_region arc_region(std::vector<circle_arc> arcs);
/// Nested contours of a sketch: inside of an odd number of them.
flat_region nested_region(std::vector<flat_region> contours);

/// What a region sweeps from one height to another, in either order.
solid prism(const flat_region& region, double from_z, double to_z);
/// The centre is at mid-height.
solid cylinder(point3 centre, double radius, double height);
/// The side of the plane through three points to which (b - a) x (c - a) points.
solid half_space(point3 a, point3 b, point3 c);

solid united(solid a, solid b);
solid cut(solid a, solid b);
solid common(solid a, solid b);

solid moved(solid a, point3 by);
/// About a vertical axis, counter-clockwise, radians.
solid turned(solid a, point2 axis, double angle);
/// In the plane through three points.
solid mirrored(solid a, point3 p, point3 q, point3 r);

}  // namespace kvt
