// Tests of the resize rule of the Design view.
#include "views/view_layout.hpp"

#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(view_layout, makes_the_picture_square_below_the_height_of_the_form) {
    view_state state;
    const auto layout = resize_view(7185.0, state);
    ASSERT_TRUE(layout.has_value());
    EXPECT_EQ(state.view_size, 6000);
    EXPECT_EQ(layout->picture_side, 6000.0);
    EXPECT_EQ(layout->form_height, 7185.0);
    EXPECT_EQ(layout->form_width, 6390.0);
}

TEST(view_layout, rounds_the_side_to_whole_twips) {
    view_state state;
    EXPECT_EQ(resize_view(3185.5, state)->form_height, 3185.0);
    EXPECT_EQ(state.view_size, 2000);
}

TEST(view_layout, keeps_a_negative_side_and_does_nothing_more) {
    view_state state;
    EXPECT_FALSE(resize_view(1184.0, state).has_value());
    EXPECT_EQ(state.view_size, -1);
    EXPECT_TRUE(resize_view(1185.0, state).has_value());
    EXPECT_EQ(state.view_size, 0);
}

TEST(view_layout, caps_the_side_at_16_bits) {
    view_state state;
    EXPECT_EQ(resize_view(100000.0, state)->picture_side, 32767.0);
    EXPECT_EQ(state.view_size, 32767);
    EXPECT_FAILURE(resize_view(-40000.0, state), failure::overflow);
}

TEST(view_layout, leaves_scale_and_place_of_the_drawing_alone) {
    view_state state;
    state.view_scale = 12.0;
    state.view_cx = 7.0;
    resize_view(5000.0, state);
    EXPECT_EQ(state.view_scale, 12.0);
    EXPECT_EQ(state.view_cx, 7.0);
}

}  // namespace
}  // namespace kvt
