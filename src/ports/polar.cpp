#include "ports/polar.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

double radians_of(double degrees) {
    return checked_finite(degrees * PI_D / 180.0);
}

double degrees_of(double radians) {
    return radians * 180.0 / PI_D;
}

double cos_deg(double degrees) {
    return std::cos(radians_of(degrees));
}

double sin_deg(double degrees) {
    return std::sin(radians_of(degrees));
}

point2 on_circle(double r, double degrees, double shift) {
    return {r * cos_deg(degrees) - shift, r * sin_deg(degrees)};
}

double atan_deg(double y, double x) {
    return degrees_of(std::atan(checked_divide(y, x)));
}

}  // namespace kvt
