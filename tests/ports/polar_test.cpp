// Tests of the angles in degrees.
#include "ports/polar.hpp"

#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(polar, degrees_become_radians_with_the_product_s_pi) {
    EXPECT_EQ(radians_of(180.0), 3.1415927);
    EXPECT_EQ(degrees_of(3.1415927), 180.0);
    EXPECT_EQ(cos_deg(60.0), std::cos(60.0 * 3.1415927 / 180.0));
    EXPECT_EQ(sin_deg(60.0), std::sin(60.0 * 3.1415927 / 180.0));
}

TEST(polar, a_circle_is_shifted_towards_negative_x) {
    const point2 top = on_circle(10.0, 90.0, 2.5);
    EXPECT_NEAR(top.x, -2.5, 1e-6);  // 3.1415927 is not quite pi
    EXPECT_NEAR(top.y, 10.0, 1e-6);
}

TEST(polar, an_angle_too_large_fails) {
    EXPECT_FAILURE(cos_deg(1e308), failure::overflow);
}

TEST(polar, the_angle_of_a_vertical_line_fails) {
    EXPECT_NEAR(atan_deg(1.0, 1.0), 45.0, 1e-6);
    EXPECT_FAILURE(atan_deg(1.0, 0.0), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
