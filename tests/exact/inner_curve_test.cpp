// Tests of the inner rotor's curve: its derivatives, the product's own points, spline and lines.
#include "exact/inner_curve.hpp"

#include "app/stages/calculate_profiles.hpp"
#include "exact/exact_designs.hpp"
#include "exact/plane.hpp"
#include "support/expect_failure.hpp"
#include "support/open_design.hpp"
#include "support/scripted_user.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

TEST(inner_curve, begins_at_the_root) {
    // R - e - r - c = 25 - 3 - 9 - 0.05
    const exact_pair pair = pair_of_inner_rotor(pair_design(6, 3.0, 25.0, 9.0, 20.0));
    const auto curve = inner_curve_at(pair, 0.0);
    EXPECT_NEAR(curve[0].x, 12.95, 1e-13);
    EXPECT_NEAR(curve[0].y, 0.0, 1e-13);
    EXPECT_NEAR(curve[1].x, 0.0, 1e-13);
    EXPECT_GT(curve[1].y, 0.0);
}

TEST(inner_curve, is_the_path_of_the_contacts) {
    random_values random;
    for (int i = 0; i < property_count(200); ++i) {
        const exact_pair pair = pair_of_inner_rotor(random_pair(random));
        const double t = random.real(0.0, 2.0 * PI);
        EXPECT_LT(distance(inner_curve_at(pair, t)[0],
                           inner_profile_point(pair, -t * (pair.lobes - 1.0))),
                  1e-11);
    }
}

TEST(inner_curve, has_derivatives_that_are_slopes_of_each_other) {
    constexpr double STEP = 1e-5;
    random_values random;
    for (int i = 0; i < property_count(100); ++i) {
        const exact_pair pair = pair_of_inner_rotor(random_pair(random));
        const double t = random.real(0.0, 2.0 * PI);
        const auto before = inner_curve_at(pair, t - STEP);
        const auto here = inner_curve_at(pair, t);
        const auto behind = inner_curve_at(pair, t + STEP);
        for (std::size_t k = 0; k < 4; ++k) {
            const double scale = 1.0 + std::hypot(here[k + 1].x, here[k + 1].y);
            EXPECT_NEAR((behind[k].x - before[k].x) / (2.0 * STEP), here[k + 1].x, 1e-3 * scale);
            EXPECT_NEAR((behind[k].y - before[k].y) / (2.0 * STEP), here[k + 1].y, 1e-3 * scale);
        }
        EXPECT_NEAR(inner_curve_speed(pair, t), std::hypot(here[1].x, here[1].y), 1e-9);
    }
}

/// The product takes the normals from differences of its points, so its profile has a noise of its
/// own.
TEST(inner_curve, goes_through_the_points_of_the_product) {
    constexpr double NOISE_MM = 2e-3;
    for (const char* name : {"n04_fuel", "n07_engine_oil_groove", "n09_crank_oil"}) {
        program kavetta = opened_design(name);
        scripted_user person;
        calculate_profiles(kavetta, person);
        const exact_pair pair = pair_of_inner_rotor(kavetta.design_params);
        for (std::size_t i = 0; i < 3600; i += 7) {
            const point2 point = {kavetta.rotor_profiles.inner_x[i],
                                  kavetta.rotor_profiles.inner_y[i]};
            double least = 1e9;
            double t =
                std::atan2(kavetta.rotor_profiles.troch_y[i], kavetta.rotor_profiles.troch_x[i]);
            for (int step = 0; step < 8; ++step) {
                const auto curve = inner_curve_at(pair, t);
                const point2 off = difference(point, curve[0]);
                least = std::min(least, std::hypot(off.x, off.y));
                t += dot(off, curve[1]) / dot(curve[1], curve[1]);
            }
            ASSERT_LT(least, NOISE_MM) << name << " " << i;
        }
    }
}

TEST(inner_curve, has_a_mirrored_spline_within_a_tenth_of_a_micrometre) {
    random_values random;
    for (int i = 0; i < property_count(100); ++i) {
        const exact_pair pair = pair_of_inner_rotor(random_pair(random));
        const inner_lobe lobe = inner_lobe_spline(pair);
        EXPECT_LE(deviation_of_lobe(pair, lobe, 50), 1.02 * SPLINE_DEVIATION_MM);
        EXPECT_LE(lobe.spline.span_count(), 48U);
        const std::vector<double>& knots = lobe.spline.knots;
        for (std::size_t k = 0; k < knots.size(); ++k) {
            EXPECT_NEAR(knots[k] + knots[knots.size() - 1 - k], knots.back(), 1e-11);
            EXPECT_NEAR(lobe.angles[k] + lobe.angles[knots.size() - 1 - k],
                        2.0 * PI / (pair.lobes - 1.0), 1e-12);
        }
    }
}

/// u = 2 e^(i t^2) is a circle of the radius 2, not by its length; at t = 1 its derivatives are
/// u times 2i, 2i - 4, -12 - 8i, -12 - 48i + 16. By the length it is u / 2^4.
TEST(inner_curve, knows_the_fourth_derivative_by_length_of_a_circle) {
    const std::complex<double> i(0.0, 1.0), u = 2.0 * std::polar(1.0, 1.0);
    const auto place = [](std::complex<double> z) { return point2{z.real(), z.imag()}; };
    const point2 fourth = fourth_derivative_by_length(
        {place(u), place(2.0 * i * u), place((2.0 * i - 4.0) * u), place((-12.0 - 8.0 * i) * u),
         place((-12.0 - 48.0 * i + 16.0) * u)});
    EXPECT_NEAR(fourth.x, u.real() / 16.0, 1e-12);
    EXPECT_NEAR(fourth.y, u.imag() / 16.0, 1e-12);
}

TEST(inner_curve, has_lines_within_a_distance) {
    constexpr double ERROR_MM = 1e-3;
    random_values random;
    for (int i = 0; i < property_count(50); ++i) {
        const exact_pair pair = pair_of_inner_rotor(random_pair(random));
        const std::vector<point2> points = inner_lobe_points(pair, ERROR_MM);
        EXPECT_EQ(points.size() % 2, 0U) << "the tip is one of them";
        double largest = 0.0;
        std::size_t line = 0;
        for (int k = 0; k < 20000; ++k) {
            const double t = 2.0 * PI / (pair.lobes - 1.0) * k / 20000;
            const point2 at = inner_curve_at(pair, t)[0];
            const auto off_line = [&](std::size_t from) {
                const point2 a = points[from];
                const point2 b = from + 1 < points.size()
                                     ? points[from + 1]
                                     : turned(points[0], 2.0 * PI / (pair.lobes - 1.0));
                const point2 way = difference(b, a);
                const double length = std::hypot(way.x, way.y);
                const double along = dot(way, difference(at, a)) / length;
                return along < 0.0 || along > length
                           ? 1e9
                           : std::abs(cross(way, difference(at, a))) / length;
            };
            while (line + 1 < points.size() && off_line(line + 1) < off_line(line)) {
                ++line;
            }
            const double off = off_line(line);
            largest = off < 1e8 ? std::max(largest, off) : largest;
        }
        EXPECT_LT(largest, ERROR_MM);
        EXPECT_GT(largest, 0.2 * ERROR_MM) << "not more lines than needed";
    }
}

TEST(inner_curve, refuses_a_profile_that_cuts_itself) {
    design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    design.clearn_half = 20.0;
    const exact_pair pair = pair_of_inner_rotor(design);
    EXPECT_FAILURE(inner_lobe_spline(pair), failure::invalid_procedure_call);
    EXPECT_FAILURE(inner_lobe_points(pair, 0.001), failure::invalid_procedure_call);
}

}  // namespace
}  // namespace kvt
