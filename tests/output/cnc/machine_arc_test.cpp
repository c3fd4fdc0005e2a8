// The arc that a machine runs for an R word.
#include "output/cnc/machine_arc.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

TEST(machine_arc, runs_the_short_way_to_either_side) {
    const double PI = std::acos(-1.0);
    // From (5, 0) to (0, 5) with R5: counterclockwise about the origin, clockwise about (5, 5).
    const circle_arc left = machine_arc({5, 0}, {move_kind::counterclockwise_g03, {0, 5}, 5.0});
    EXPECT_NEAR(distance(left.centre, {}), 0.0, 1e-12);
    EXPECT_NEAR(left.sweep, PI / 2.0, 1e-12);
    EXPECT_NEAR(distance(left.at(1.0), {0, 5}), 0.0, 1e-12);
    const circle_arc right = machine_arc({5, 0}, {move_kind::clockwise_g02, {0, 5}, 5.0});
    EXPECT_NEAR(distance(right.centre, {5, 5}), 0.0, 1e-12);
    EXPECT_NEAR(right.sweep, -PI / 2.0, 1e-12);
}

TEST(machine_arc, reaches_an_end_within_its_diameter) {
    EXPECT_TRUE(reaches_end({0, 0}, {move_kind::clockwise_g02, {10, 0}, 5.0}));
    EXPECT_TRUE(reaches_end({0, 0}, {move_kind::clockwise_g02, {10.000009, 0}, 5.0}));
    EXPECT_FALSE(reaches_end({0, 0}, {move_kind::clockwise_g02, {10.00002, 0}, 5.0}));
}

}  // namespace kvt
