// Tests of the directions of the sides, each branch by a line whose slope is known.
#include "ports/side_lines.hpp"

#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr double PI = 3.1415927;
const double EIGHTH = std::atan(1.0);  // of a slope of 1

TEST(side_lines, start_side_is_measured_from_the_vertical) {
    EXPECT_EQ(start_side_angle({0, 0}, {1, 1}), EIGHTH);
    EXPECT_EQ(start_side_angle({0, 0}, {2, 1}), std::atan(2.0));
}

TEST(side_lines, start_side_turns_only_for_a_falling_line_to_the_right) {
    EXPECT_EQ(start_side_angle({0, 0}, {1, -1}), -EIGHTH + PI);
    EXPECT_EQ(start_side_angle({0, 0}, {-1, 1}), -EIGHTH);
    EXPECT_EQ(start_side_angle({0, 0}, {-1, -1}), EIGHTH);
}

TEST(side_lines, level_start_side_is_a_right_angle) {
    EXPECT_EQ(start_side_angle({1, 3}, {5, 3}), PI / 2.0);
    EXPECT_EQ(start_side_angle({1, 3}, {1, 3}), PI / 2.0) << "equal corners too";
}

TEST(side_lines, vertical_sides_fail) {
    EXPECT_FAILURE(start_side_angle({1, 3}, {1, 5}), failure::division_by_zero);
    EXPECT_FAILURE(end_side_angle({1, 3}, {1, 5}), failure::division_by_zero);
    EXPECT_FAILURE(nose_angle({1, 3}, {1, 5}), failure::division_by_zero);
}

TEST(side_lines, end_side_turns_twice) {
    EXPECT_EQ(end_side_angle({0, 0}, {-1, 1}), -EIGHTH + PI) << "negative, to the left";
    EXPECT_EQ(end_side_angle({0, 0}, {-1, -1}), EIGHTH) << "positive, to the left";
    EXPECT_EQ(end_side_angle({0, 0}, {1, 1}), EIGHTH + PI) << "positive, to the right";
    EXPECT_EQ(end_side_angle({0, 0}, {1, -1}), -EIGHTH) << "negative, to the right";
}

TEST(side_lines, level_end_side_is_a_straight_angle_and_equal_corners_fail) {
    EXPECT_EQ(end_side_angle({0, 2}, {-3, 2}), PI);
    EXPECT_FAILURE(end_side_angle({1, 3}, {1, 3}), failure::division_by_zero);
}

TEST(side_lines, nose_turns_for_a_rising_line_to_the_left) {
    EXPECT_EQ(nose_angle({0, 0}, {-1, 1}), -EIGHTH + PI);
    EXPECT_EQ(nose_angle({0, 0}, {1, -1}), -EIGHTH);
    EXPECT_EQ(nose_angle({0, 0}, {1, 1}), EIGHTH);
    EXPECT_EQ(nose_angle({0, 0}, {-1, 0}), PI / 2.0);
}

}  // namespace
}  // namespace kvt
