// circle_arc: a piece of a circle, and how far points lie from it.
// Source: docs/formulas/written_files.md, "Distance from an arc".
#pragma once

#include "geometry/point2.hpp"

namespace kvt {

/// The points centre + radius (cos, sin) of from + share sweep, 0 <= share <= 1; mm and radians,
/// counterclockwise when sweep is positive.
struct circle_arc {
    point2 centre;
    double radius = 0.0;
    double from = 0.0, sweep = 0.0;

    point2 at(double share) const;
};

/// A whole circle.
struct circle {
    point2 centre;
    double radius = 0.0;
};

/// The point of an arc that lies nearest to a point: on the ray from the centre when that meets the
/// arc, else the nearer end. For the centre itself the middle of the arc.
point2 nearest_on(const circle_arc& arc, point2 point);

/// Where on the straight line between two ends the point lies that is nearest to a point, as a
/// share of the way from its start, 0 .. 1; 0 on a line without length.
double nearest_share(point2 start, point2 end, point2 point);

/// The point of the straight line between two ends that lies nearest to a point.
point2 nearest_on_line(point2 start, point2 end, point2 point);

}  // namespace kvt
