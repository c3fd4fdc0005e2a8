// The box around a solid of a stand-in, from the surfaces that its parts were made with.
#pragma once

#include "support/cad/solids.hpp"

#include <vector>

namespace kvt {

/// A vertical surface, seen from above: the circle about a, or the endless line through a and b.
struct wall {
    point2 a, b = {};
    double radius = 0.0;  ///< 0: a line
};
/// All on which the surface of a solid may lie.
struct surfaces {
    std::vector<wall> walls;
    std::vector<double> levels;
};

surfaces surfaces_of_prism(const std::vector<point2>& corners, double from_z, double to_z);
surfaces surfaces_of_cylinder(point3 centre, double radius, double height);

surfaces together(surfaces some, const surfaces& others);
surfaces moved(surfaces all, point3 by);
/// About a vertical axis, counter-clockwise, radians.
surfaces turned(surfaces all, point2 axis, double angle);

struct solid_box {
    point3 lowest, highest;
};
/// The box around the corners of a solid, which lie where two walls cross or a circle reaches
/// farthest along x or y. Corners are found to rounding; a place nearer than 1e-7 to the solid
/// counts as one of its own.
solid_box box_of(const solid& shape, const surfaces& of);

}  // namespace kvt
