// Tests of a corner's points from its angle.
#include "ports/port_corners.hpp"

#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(port_corners, a_corner_touches_its_arc_and_its_side) {
    const port_corner at = corner_at(30.0, 10.0, 12.0, 2.0, 0.7, 0.5);
    EXPECT_NEAR(std::hypot(at.c.x + 0.5, at.c.y), 12.0, 1e-12);
    EXPECT_NEAR(std::hypot(at.r.x + 0.5, at.r.y), 10.0, 1e-12);
    EXPECT_NEAR(std::hypot(at.c.x - at.r.x, at.c.y - at.r.y), 2.0, 1e-12);
    EXPECT_NEAR(std::hypot(at.c.x - at.s.x, at.c.y - at.s.y), 2.0, 1e-12);
    // The side runs along (sin 0.7, cos 0.7), so the line to its tangent point is at right angles
    // to it.
    EXPECT_NEAR((at.s.x - at.c.x) * std::sin(0.7) + (at.s.y - at.c.y) * std::cos(0.7), 0.0, 1e-12);
    EXPECT_EQ(at.t_deg, 30.0);
}

TEST(port_corners, without_a_radius_all_points_of_a_corner_are_one) {
    const port_corner at = corner_at(30.0, 10.0, 10.0, 0.0, 0.7, 0.5);
    EXPECT_EQ(at.c, at.r);
    EXPECT_EQ(at.c, at.s);
}

TEST(port_corners, angle_of_a_corner_on_the_axis) {
    EXPECT_NEAR(axis_corner_angle(1.0, 1.0), 45.0, 1e-6);
    EXPECT_EQ(axis_corner_angle(0.0, 5.0), 0.0);
    EXPECT_FAILURE(axis_corner_angle(1.0, 0.0), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
