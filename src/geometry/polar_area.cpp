#include "geometry/polar_area.hpp"

#include "base/constants.hpp"

#include <cmath>

namespace kvt {

namespace {

/// 1 - c^2 of the triangle rule, c being the cosine of the angle at the origin.
double squared_sine(const point2& p, double rp, const point2& q, double rq) {
    const double d = radius_of({q.x - p.x, q.y - p.y});
    const double c = checked_divide(rq * rq + rp * rp - d * d, (rq + rq) * rp);
    return 1.0 - c * c;
}

}  // namespace

double radius_of(const point2& point) {
    return checked_sqrt(point.x * point.x + point.y * point.y);
}

double inner_triangle_area(const point2& p, double rp, const point2& q, double rq) {
    const double s = checked_sqrt(squared_sine(p, rp, q, rq));
    return rp * rq * s / 2.0;
}

double outer_triangle_area(const point2& p, double rp, const point2& q, double rq) {
    double s2 = squared_sine(p, rp, q, rq);
    if (s2 < 0.0) {
        s2 = s2 * -1.0;
    }
    return rp * rq * checked_sqrt(s2) / 2.0;
}

double polar_angle(const point2& point) {
    const double angle = std::atan(checked_divide(point.y, point.x));
    return point.x < 0.0 ? angle + PI_D : angle;
}

}  // namespace kvt
