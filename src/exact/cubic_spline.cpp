#include "exact/cubic_spline.hpp"

#include "exact/plane.hpp"

#include <cassert>
#include <utility>

namespace kvt {

namespace {

point2 moved(const point2& point, const point2& way, double by) {
    return {point.x + by * way.x, point.y + by * way.y};
}

point2 between(const point2& a, const point2& b, double share) {
    return moved(a, difference(b, a), share);
}

/// One row of the equations of the slopes: before s0 + middle s1 + behind s2 = right.
struct slope_row {
    double before, middle, behind;
    point2 right;
};

slope_row row_at(const cubic_spline& spline, std::size_t i) {
    const double h0 = spline.knots[i] - spline.knots[i - 1];
    const double h1 = spline.knots[i + 1] - spline.knots[i];
    const point2 to = difference(spline.points[i], spline.points[i - 1]);
    const point2 from = difference(spline.points[i + 1], spline.points[i]);
    return {h1, 2.0 * (h0 + h1), h0, moved({}, moved(moved({}, to, h1 / h0), from, h0 / h1), 3.0)};
}

/// Elimination without pivots: every row's middle outweighs its sides.
void solve_slopes(cubic_spline& spline) {
    const std::size_t last = spline.span_count();
    std::vector<double> behind(last + 1, 0.0);
    for (std::size_t i = 1; i < last; ++i) {
        const slope_row row = row_at(spline, i);
        const double pivot = row.middle - row.before * behind[i - 1];
        behind[i] = row.behind / pivot;
        spline.slopes[i] =
            moved({}, moved(row.right, spline.slopes[i - 1], -row.before), 1.0 / pivot);
    }
    for (std::size_t i = last - 1; i > 0; --i) {
        spline.slopes[i] = moved(spline.slopes[i], spline.slopes[i + 1], -behind[i]);
    }
}

}  // namespace

std::array<point2, 4> cubic_spline::bezier_of(std::size_t i) const {
    const double third = (knots[i + 1] - knots[i]) / 3.0;
    return {points[i], moved(points[i], slopes[i], third),
            moved(points[i + 1], slopes[i + 1], -third), points[i + 1]};
}

point2 cubic_spline::at(std::size_t i, double share) const {
    return bezier_point(bezier_of(i), share);
}

std::vector<point2> cubic_spline::controls() const {
    std::vector<point2> result = {points.front()};
    for (std::size_t i = 0; i < span_count(); ++i) {
        const std::array<point2, 4> bezier = bezier_of(i);
        // The line through the two inner points, taken back to the knot before the span.
        const double back = i == 0 ? 0.0 : knots[i] - knots[i - 1];
        result.push_back(between(bezier[1], bezier[2], -back / (knots[i + 1] - knots[i])));
    }
    result.push_back(bezier_of(span_count() - 1)[2]);
    result.push_back(points.back());
    return result;
}

cubic_spline spline_through(std::vector<double> knots, std::vector<point2> points,
                            const point2& first_slope, const point2& last_slope) {
    assert(knots.size() == points.size() && knots.size() > 1);
    cubic_spline spline{std::move(knots), std::move(points), {}};
    spline.slopes.resize(spline.knots.size());
    spline.slopes.front() = first_slope;
    spline.slopes.back() = last_slope;
    solve_slopes(spline);
    return spline;
}

point2 bezier_point(const std::array<point2, 4>& controls, double share) {
    std::array<point2, 4> at = controls;
    for (std::size_t count = 3; count > 0; --count) {
        for (std::size_t i = 0; i < count; ++i) {
            at[i] = between(at[i], at[i + 1], share);
        }
    }
    return at[0];
}

double bezier_sweep(const std::array<point2, 4>& controls) {
    const auto& [a, b, c, d] = controls;
    return (6.0 * cross(a, b) + 3.0 * cross(a, c) + cross(a, d) + 3.0 * cross(b, c) +
            3.0 * cross(b, d) + 6.0 * cross(c, d)) /
           20.0;
}

}  // namespace kvt
