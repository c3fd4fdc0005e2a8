// Tests of the groove's point list with corners put by hand.
#include "ports/groove_outline.hpp"

#include "ports/polar.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A square-nosed groove of 10 degrees with a tail of 2 degrees, without eccentricity.
groove_shape square_groove() {
    groove_shape groove;
    groove.inner_r = 10.0;
    groove.outer_r = 12.0;
    groove.start_inner_deg = groove.start_outer_deg = 140.0;
    groove.overlap_deg = 2.0;
    groove.a = on_circle(10.0, 140.0, 0.0);
    groove.b = on_circle(12.0, 140.0, 0.0);
    groove.tail_inner = on_circle(10.0, 138.0, 0.0);
    groove.tail_outer = on_circle(12.0, 138.0, 0.0);
    groove.inner = corner_at(150.0, 10.0, 10.0, 0.0, 2.0, 0.0);
    groove.outer = corner_at(150.0, 12.0, 12.0, 0.0, 2.0, 0.0);
    return groove;
}

TEST(groove_outline, counts_its_paths_in_half_degrees) {
    const groove_outline built = outline_of_groove(square_groove());
    EXPECT_EQ(built.mark_b, 20) << "a, 19 points, the corner";
    EXPECT_EQ(built.mark_c, 21);
    EXPECT_EQ(built.main_last, 41);
    EXPECT_EQ(built.mark_d, 45);
    EXPECT_EQ(built.mark_a, 46);
    EXPECT_EQ(built.outline.last(), 50);
    EXPECT_EQ(built.outline.points().front(), built.outline.points().back());
}

TEST(groove_outline, equal_tangent_points_drop_the_nose_line) {
    groove_shape groove = square_groove();
    groove.outer.s = groove.inner.s;
    const groove_outline built = outline_of_groove(groove);
    EXPECT_FALSE(built.mark_c);
    EXPECT_EQ(built.main_last, 40);
}

}  // namespace
}  // namespace kvt
