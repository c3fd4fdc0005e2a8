// plane: points of the plane of the rotors as vectors.
#pragma once

#include "geometry/point2.hpp"

#include <cmath>

namespace kvt {

/// x1 y2 - y1 x2: positive where the second points to the left of the first.
inline double cross(const point2& a, const point2& b) {
    return a.x * b.y - a.y * b.x;
}

inline double dot(const point2& a, const point2& b) {
    return a.x * b.x + a.y * b.y;
}

/// Turned about the origin, counter-clockwise, radians.
inline point2 turned(const point2& point, double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {point.x * c - point.y * s, point.x * s + point.y * c};
}

}  // namespace kvt
