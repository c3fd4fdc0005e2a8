// cursor_position: from a place of the picture to the design.
#include "views/cursor_position.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

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
