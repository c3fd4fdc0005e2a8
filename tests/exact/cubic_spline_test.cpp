// Tests of the interpolating spline: what it goes through, its control points, its area.
#include "exact/cubic_spline.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

/// A half circle of the radius 2 by its angle.
cubic_spline half_circle(int spans) {
    std::vector<double> knots;
    std::vector<point2> points;
    for (int i = 0; i <= spans; ++i) {
        knots.push_back(std::numbers::pi * i / spans);
        points.push_back(polar_point(2.0, knots.back()));
    }
    return spline_through(knots, points, {0.0, 2.0}, {0.0, -2.0});
}

/// The point at a parameter by the control points alone (de Boor).
point2 by_controls(const cubic_spline& spline, std::size_t span, double t) {
    std::vector<double> knots(3, spline.knots.front());
    knots.insert(knots.end(), spline.knots.begin(), spline.knots.end());
    knots.insert(knots.end(), 3, spline.knots.back());
    const std::vector<point2> controls = spline.controls();
    std::vector<point2> d(controls.begin() + static_cast<std::ptrdiff_t>(span),
                          controls.begin() + static_cast<std::ptrdiff_t>(span + 4));
    for (std::size_t r = 1; r <= 3; ++r) {
        for (std::size_t j = 3; j >= r; --j) {
            const std::size_t i = span + j;
            const double share = (t - knots[i]) / (knots[i + 4 - r] - knots[i]);
            d[j] = {d[j - 1].x + share * (d[j].x - d[j - 1].x),
                    d[j - 1].y + share * (d[j].y - d[j - 1].y)};
        }
    }
    return d[3];
}

TEST(cubic_spline, repeats_a_cubic) {
    // x = t, y = t^3 on knots of different lengths.
    const cubic_spline spline =
        spline_through({0.0, 1.0, 1.5, 4.0}, {{0.0, 0.0}, {1.0, 1.0}, {1.5, 3.375}, {4.0, 64.0}},
                       {1.0, 0.0}, {1.0, 48.0});
    EXPECT_NEAR(spline.slopes[1].y, 3.0, 1e-12);
    EXPECT_NEAR(spline.slopes[2].y, 6.75, 1e-12);
    EXPECT_NEAR(spline.at(2, 0.5).y, 2.75 * 2.75 * 2.75, 1e-12);
    EXPECT_NEAR(spline.at(2, 0.5).x, 2.75, 1e-12);
}

TEST(cubic_spline, misses_a_circle_by_the_fourth_power_of_its_spans) {
    double largest = 0.0;
    const cubic_spline spline = half_circle(8);
    for (std::size_t i = 0; i < spline.span_count(); ++i) {
        for (const double share : {0.25, 0.5, 0.75}) {
            const point2 at = spline.at(i, share);
            largest = std::max(largest, std::abs(std::hypot(at.x, at.y) - 2.0));
        }
    }
    const double step = std::numbers::pi / 8.0;
    EXPECT_LT(largest, 2.0 * step * step * step * step / 384.0 * 1.1);
    EXPECT_GT(largest, 0.0);
}

TEST(cubic_spline, has_control_points_that_give_the_same_curve) {
    const cubic_spline spline = half_circle(5);
    ASSERT_EQ(spline.controls().size(), spline.span_count() + 3);
    for (std::size_t i = 0; i < spline.span_count(); ++i) {
        for (const double share : {0.0, 0.3, 1.0}) {
            const double t = spline.knots[i] + share * (spline.knots[i + 1] - spline.knots[i]);
            EXPECT_LT(distance(by_controls(spline, i, t), spline.at(i, share)), 1e-13);
        }
    }
}

TEST(cubic_spline, sweeps_half_a_circle) {
    double sweep = 0.0;
    const cubic_spline spline = half_circle(40);
    for (std::size_t i = 0; i < spline.span_count(); ++i) {
        sweep += bezier_sweep(spline.bezier_of(i));
    }
    EXPECT_NEAR(sweep, 2.0 * std::numbers::pi, 1e-6);
}

TEST(cubic_spline, of_one_span_has_its_two_slopes) {
    const cubic_spline spline =
        spline_through({0.0, 3.0}, {{}, {3.0, 0.0}}, {1.0, 1.0}, {1.0, -1.0});
    EXPECT_EQ(spline.controls(),
              (std::vector<point2>{{0.0, 0.0}, {1.0, 1.0}, {2.0, 1.0}, {3.0, 0.0}}));
}

}  // namespace
}  // namespace kvt
