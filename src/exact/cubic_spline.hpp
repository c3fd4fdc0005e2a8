// cubic_spline: a smooth curve through points, as files hand it on.
// Source: docs/formulas/written_files.md, "Exact contours".
#pragma once

#include "geometry/point2.hpp"

#include <array>
#include <cstddef>
#include <vector>

namespace kvt {

/// Cubic between neighbouring knots, with two continuous derivatives. Lists of one length, 2 or
/// more.
struct cubic_spline {
    std::vector<double> knots;   ///< ascending
    std::vector<point2> points;  ///< at the knots, mm
    std::vector<point2> slopes;  ///< derivatives by the parameter at the knots

    std::size_t span_count() const { return knots.size() - 1; }

    /// The control points of span i, 0 .. span_count - 1, as a Bezier curve:
    ///     P, P + h S / 3, Q - h T / 3, Q      h length of the span, S and T the slopes at its ends
    std::array<point2, 4> bezier_of(std::size_t i) const;

    /// The point of span i at a share of its length, 0 <= share <= 1.
    point2 at(std::size_t i, double share) const;

    /// The control points over the knots with four equal ones at both ends, span_count + 3.
    std::vector<point2> controls() const;
};

/// The spline through points with given slopes at both ends. Its slopes solve
///     h1 s0 + 2 (h0 + h1) s1 + h0 s2 = 3 (h1 (p1 - p0) / h0 + h0 (p2 - p1) / h1)
/// at every inner knot, h0 and h1 being the lengths of the spans before and behind it.
cubic_spline spline_through(std::vector<double> knots, std::vector<point2> points,
                            const point2& first_slope, const point2& last_slope);

/// A point of a Bezier curve of the third degree, 0 <= share <= 1.
point2 bezier_point(const std::array<point2, 4>& controls, double share);

/// The integral (x dy - y dx) / 2 along it.
double bezier_sweep(const std::array<point2, 4>& controls);

}  // namespace kvt
