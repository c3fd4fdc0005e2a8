// Tests of the triangle rule.
#include "geometry/polar_area.hpp"

#include "base/constants.hpp"
#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

TEST(triangle_area, is_half_the_product_of_the_legs) {
    EXPECT_DOUBLE_EQ(inner_triangle_area({3.0, 0.0}, 3.0, {0.0, 4.0}, 4.0), 6.0);
    EXPECT_DOUBLE_EQ(outer_triangle_area({3.0, 0.0}, 3.0, {0.0, 4.0}, 4.0), 6.0);
}

TEST(triangle_area, has_no_sign) {
    EXPECT_DOUBLE_EQ(inner_triangle_area({0.0, 4.0}, 4.0, {3.0, 0.0}, 3.0), 6.0);
}

TEST(triangle_area, of_an_impossible_cosine_fails_on_the_inner_side_only) {
    // Distances 1 and 2 with points 0.5 apart: c = (4 + 1 - 0.25) / 4 = 1.1875, 1 - c^2 =
    // -0.41015625
    const point2 p = {1.0, 0.0};
    const point2 q = {1.5, 0.0};
    EXPECT_FAILURE(inner_triangle_area(p, 1.0, q, 2.0), failure::invalid_procedure_call);
    EXPECT_DOUBLE_EQ(outer_triangle_area(p, 1.0, q, 2.0), 2.0 * std::sqrt(0.41015625) / 2.0);
}

TEST(triangle_area, fails_for_a_point_at_the_origin) {
    EXPECT_FAILURE(outer_triangle_area({0.0, 0.0}, 0.0, {1.0, 0.0}, 1.0),
                   failure::division_by_zero);
}

TEST(polar_angle, adds_half_a_turn_left_of_the_axis_only) {
    EXPECT_EQ(polar_angle({1.0, -1.0}), std::atan(-1.0));
    EXPECT_EQ(polar_angle({-1.0, 1.0}), std::atan(-1.0) + PI_D);
    EXPECT_EQ(polar_angle({-1.0, -1.0}), std::atan(1.0) + PI_D);
    EXPECT_FAILURE(polar_angle({0.0, 1.0}), failure::division_by_zero);
}

}  // namespace kvt
