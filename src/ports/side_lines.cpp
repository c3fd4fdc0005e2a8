#include "ports/side_lines.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

double start_side_angle(point2 p1, point2 p4) {
    const double dx = p4.x - p1.x;
    const double dy = p4.y - p1.y;
    if (dy == 0.0) {
        return PI_D / 2.0;
    }
    const double s = checked_divide(dy, dx);
    if (s == 0.0) {
        return PI_D;
    }
    const double angle = std::atan(checked_divide(1.0, s));
    return angle < 0.0 && dx > 0.0 ? angle + PI_D : angle;
}

double end_side_angle(point2 p2, point2 p3) {
    const double dx = p3.x - p2.x;
    const double dy = p3.y - p2.y;
    const double s = checked_divide(dy, dx);
    if (s == 0.0) {
        return PI_D;
    }
    double angle = std::atan(checked_divide(1.0, s));
    if (angle < 0.0 && dx < 0.0) {
        angle = angle + PI_D;
    }
    if (angle > 0.0 && dx > 0.0) {
        angle = angle + PI_D;
    }
    return angle;
}

double nose_angle(point2 n1, point2 n2) {
    const double dx = n2.x - n1.x;
    const double dy = n2.y - n1.y;
    if (dy == 0.0) {
        return PI_D / 2.0;
    }
    const double s = checked_divide(dy, dx);
    if (s == 0.0) {
        return PI_D / 2.0;
    }
    const double angle = std::atan(checked_divide(1.0, s));
    return angle < 0.0 && dx < 0.0 ? angle + PI_D : angle;
}

}  // namespace kvt
