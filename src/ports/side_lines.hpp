// The sides of a port: the straight lines through its entered corners, and their directions.
// Source: docs/formulas/ports.md, "Sides".
#pragma once

#include "geometry/point2.hpp"

namespace kvt {

/// Direction theta of the start side from its inner corner p1 to its outer corner p4, radians, with
/// s = dy / dx:
///     PI_D / 2 when dy = 0      PI_D when s = 0      else atan(1 / s), plus PI_D when that is
///     negative and dx > 0
/// Throws division_by_zero for a vertical side (dx = 0, dy not 0).
double start_side_angle(point2 p1, point2 p4);

/// Direction of the end side from p2 to p3, radians:
///     PI_D when s = 0      else atan(1 / s), plus PI_D when negative and dx < 0, then plus PI_D
///     when positive and dx >
///     0
/// Kept: the second test sees the result of the first, and there is no test for dy = 0: a level end
/// side has s = 0, and two equal corners divide 0 by 0; side_lines_test holds it. Throws
/// division_by_zero when dx is 0.
double end_side_angle(point2 p2, point2 p3);

/// Direction of the groove's nose from n1 to n2, radians:
///     PI_D / 2 when dy = 0 or s = 0      else atan(1 / s), plus PI_D when that is negative and dx
///     < 0
/// Throws division_by_zero when dx is 0 and dy is not.
double nose_angle(point2 n1, point2 n2);

}  // namespace kvt
