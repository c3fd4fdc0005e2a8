// point2: a point or a difference of points in the plane of the rotors, mm.
#pragma once

#include <cmath>

namespace kvt {

struct point2 {
    double x = 0.0, y = 0.0;

    friend bool operator==(const point2&, const point2&) = default;
};

/// (radius cos angle, radius sin angle); angle in radians.
inline point2 polar_point(double radius, double angle) {
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

/// point - origin.
inline point2 difference(const point2& point, const point2& origin) {
    return {point.x - origin.x, point.y - origin.y};
}

/// Distance of two points.
inline double distance(const point2& a, const point2& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

}  // namespace kvt
