// Tests of the places of the Design view: single precision, and from the picture to the design.
#include "views/twips.hpp"

#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(twips, are_rounded_to_single_precision) {
    EXPECT_EQ(single(0.1), 0.1F);
    EXPECT_EQ(single(-1500.5), -1500.5F);
}

TEST(twips, that_single_precision_cannot_hold_fail) {
    EXPECT_FAILURE(single(1e39), failure::overflow);
    EXPECT_FAILURE(single(std::nan("")), failure::overflow);
}

view_state drawn() {
    view_state state;
    state.view_scale = 100.0;
    state.view_cx = 3000.0;
    state.view_cy = 3000.0;
    state.view_ecc = 250.0;
    return state;
}

TEST(cursor_position, counts_from_the_inner_rotor_axis) {
    const auto point = cursor_position(3250.0, 3000.0, drawn());
    ASSERT_TRUE(point);
    EXPECT_EQ(point->x, 0.0);
    EXPECT_EQ(point->y, 0.0);
}

TEST(cursor_position, is_in_millimetres_to_the_right_and_upwards) {
    const auto point = cursor_position(4500.0, 2000.0, drawn());
    EXPECT_EQ(point->x, 12.5);  // (4500 - 3000 - 250) / 100
    EXPECT_EQ(point->y, 10.0);  // (3000 - 2000) / 100
}

TEST(cursor_position, is_nothing_before_a_design_has_a_scale) {
    EXPECT_FALSE(cursor_position(3250.0, 3000.0, view_state{}));
}

}  // namespace
}  // namespace kvt
