// The polar area sum: the area of a point list seen from the origin, triangle by triangle.
#pragma once

#include "base/checked_math.hpp"
#include "geometry/point2.hpp"

#include <cstdint>
#include <span>

namespace kvt {

/// Distance from the origin, mm.
double radius_of(const point2& point);

/// Area of the triangle of the origin with the points p and q at distances rp and rq from it, mm2:
///     c = (rq^2 + rp^2 - d^2) / ((rq + rq) rp)      s = sqrt(1 - c^2)      area = rp rq s / 2
/// d is the distance of p and q. Source: docs/formulas/chambers.md, "Triangle rule".
/// Kept: the sums of the inner profile have no guard, a negative 1 - c^2 throws
/// invalid_procedure_call; those of the outer profile make it positive. polar_area_test holds it.
double inner_triangle_area(const point2& p, double rp, const point2& q, double rq);
double outer_triangle_area(const point2& p, double rp, const point2& q, double rq);

/// The polar angle: arctan(y/x), plus PI_D if x < 0. Throws division_by_zero when x is 0.
double polar_angle(const point2& point);

/// Element i of two lists.
inline point2 point_at(std::span<const double> x, std::span<const double> y, std::int64_t i) {
    return {checked_at(x, i), checked_at(y, i)};
}

/// The pair at k, k + 1 of a flat list.
inline point2 pair_at(std::span<const double> xy, std::int64_t k) {
    return {checked_at(xy, k), checked_at(xy, k + 1)};
}

}  // namespace kvt
