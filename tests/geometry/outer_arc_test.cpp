// Tests of the arcs of the outer rotor: start angle, sweep, and the tables that unwrap the end
// angle.
#include "geometry/outer_arc.hpp"

#include "base/constants.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace kvt {

namespace {

/// An arc between two diagonals, each at 45 degrees of its quadrant; the angles in eighths of a
/// turn.
struct diagonal_arc {
    int start_x, start_y, end_x, end_y;
    int start, end;
};

void expect_arc(const arc_angles& arc, const diagonal_arc& row, double sweep_sign) {
    const double eighth = PI_D / 4.0;
    EXPECT_NEAR(arc.a0, row.start * eighth, 1e-6);
    EXPECT_NEAR(arc.sweep, sweep_sign * (row.end - row.start) * eighth, 1e-6)
        << row.start_x << row.start_y << row.end_x << row.end_y;
}

}  // namespace

TEST(fillet_or_root_arc, unwraps_the_end_angle_row_by_row) {
    const std::vector<diagonal_arc> rows = {
        {+1, +1, +1, +1, 1, 1},  {+1, +1, +1, -1, 1, 7},  {+1, +1, -1, +1, 1, 3},
        {+1, +1, -1, -1, 1, 5},  {+1, -1, +1, +1, 7, 9},  {+1, -1, +1, -1, 7, 7},
        {+1, -1, -1, +1, 7, 11}, {+1, -1, -1, -1, 7, 13}, {-1, +1, +1, +1, 3, 9},
        {-1, +1, +1, -1, 3, 7},  {-1, +1, -1, +1, 3, 3},  {-1, +1, -1, -1, 3, 5},
        {-1, -1, +1, +1, 5, 9},  {-1, -1, +1, -1, 5, 7},  {-1, -1, -1, +1, 5, 11},
        {-1, -1, -1, -1, 5, 5},  // kept: PI_D here, where + - - - has THREE_PI_D
    };
    for (const diagonal_arc& row : rows) {
        const point2 start = {2.0 * row.start_x, 2.0 * row.start_y};
        const point2 end = {2.0 * row.end_x, 2.0 * row.end_y};
        expect_arc(fillet_or_root_arc(start, end, 3.0), row, 1.0);
    }
}

TEST(lobe_arc, unwraps_the_end_angle_row_by_row) {
    const std::vector<diagonal_arc> rows = {
        {+1, +1, +1, +1, 9, 9},  {+1, +1, +1, -1, 9, 7},  {+1, +1, -1, +1, 9, 3},
        {+1, +1, -1, -1, 9, 5},  {+1, -1, +1, +1, 7, 1},  {+1, -1, +1, -1, 7, 7},
        {+1, -1, -1, +1, 7, 3},  {+1, -1, -1, -1, 7, 5},  {-1, +1, +1, +1, 3, 1},
        {-1, +1, +1, -1, 3, -1}, {-1, +1, -1, +1, 3, 3},  {-1, +1, -1, -1, 3, -3},
        {-1, -1, +1, +1, 5, 1},  {-1, -1, +1, -1, 5, -1}, {-1, -1, -1, +1, 5, 3},
        {-1, -1, -1, -1, 5, 5},
    };
    for (const diagonal_arc& row : rows) {
        const point2 start = {2.0 * row.start_x, 2.0 * row.start_y};
        const point2 end = {2.0 * row.end_x, 2.0 * row.end_y};
        expect_arc(lobe_arc(start, end, 3.0), row, -1.0);
    }
}

TEST(fillet_or_root_arc, keeps_the_plain_arctangent_on_the_x_axis) {
    // y = 0 matches no row: the end angle of a point on the negative x axis is 0, not pi.
    const arc_angles arc = fillet_or_root_arc({1.0, 1.0}, {-1.0, 0.0}, 1.0);
    EXPECT_EQ(arc.a0 + arc.sweep, 0.0);
}

TEST(fillet_or_root_arc, fails_on_the_y_axis) {
    EXPECT_FAILURE(fillet_or_root_arc({0.0, 1.0}, {1.0, 1.0}, 1.0), failure::division_by_zero);
    EXPECT_FAILURE(fillet_or_root_arc({1.0, 1.0}, {0.0, -1.0}, 1.0), failure::division_by_zero);
    EXPECT_FAILURE(lobe_arc({0.0, 0.0}, {1.0, 1.0}, 1.0), failure::division_by_zero);
}

TEST(fillet_or_root_arc, fails_for_a_radius_of_0) {
    EXPECT_FAILURE(fillet_or_root_arc({1.0, 1.0}, {1.0, -1.0}, 0.0), failure::division_by_zero);
}

}  // namespace kvt
