// Angles in degrees with the product's pi: cosines and sines, points on circles, arctangents of
// slopes.
// Source: docs/formulas/ports.md.
#pragma once

#include "geometry/point2.hpp"

namespace kvt {

/// degrees * PI_D / 180. Throws overflow when that is not finite.
double radians_of(double degrees);

/// radians * 180 / PI_D.
double degrees_of(double radians);

double cos_deg(double degrees);
double sin_deg(double degrees);

/// (r cos angle - shift, r sin angle): a point of a circle about (-shift, 0), mm. shift is 0 for
/// the inner radius of a port, ecc for its outer radius, ecc/2 for the paths of the groove.
point2 on_circle(double r, double degrees, double shift);

/// atan(y / x) in degrees, -90 .. 90. Throws division_by_zero when x is 0.
double atan_deg(double y, double x);

}  // namespace kvt
