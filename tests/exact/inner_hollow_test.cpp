// Tests of the tightest hollow: against three points of the profile, and what any cutter follows.
#include "exact/inner_hollow.hpp"

#include "exact/exact_designs.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Diameter of the circle through three points.
double diameter_through(const point2& a, const point2& b, const point2& c) {
    const double area = std::abs(cross(difference(b, a), difference(c, a)));
    return distance(a, b) * distance(b, c) * distance(c, a) / area;
}

TEST(largest_cutter, is_the_tightest_circle_through_points_of_the_hollows) {
    const exact_pair pair = nominal_pair(pair_design(6, 3.0, 25.0, 9.0, 20.0));
    const double step = 1e-3;
    double tightest = 1e9;
    for (double angle = 0.0; angle < 3.1415; angle += step) {
        if (flank_curvature(pair, angle) < 0.0) {
            tightest =
                std::min(tightest, diameter_through(inner_profile_point(pair, angle - step),
                                                    inner_profile_point(pair, angle),
                                                    inner_profile_point(pair, angle + step)));
        }
    }
    EXPECT_NEAR(largest_cutter(pair), tightest, 1e-4 * tightest);
}

/// Offset by c, a hollow of radius r becomes one of r + c.
TEST(largest_cutter, grows_by_the_offset_of_the_profile) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const design_params design = random_pair(random);
        const double without = largest_cutter(nominal_pair(design));
        ASSERT_GT(without, 0.0);
        EXPECT_NEAR(largest_cutter(pair_of_inner_rotor(design)), without + 2.0 * design.clearn_half,
                    1e-7 * without);
    }
}

}  // namespace
}  // namespace kvt
