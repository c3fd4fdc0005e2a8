// Tests of the place of the drawing in its box.
#include "views/sight/view_box.hpp"

#include "support/property_runs.hpp"
#include "views/sight/sample_sight.hpp"
#include "views/twips.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(view_box, has_fifteen_twips_a_pixel_without_a_drawing) {
    EXPECT_EQ(view_box().on_box({150.0, -30.0}), (point2{10.0, -2.0}));
    EXPECT_EQ(view_box(view_state{}), view_box(view_state{}));
    EXPECT_EQ(view_box(view_state{}).on_box({150.0, -30.0}), (point2{10.0, -2.0}));
    EXPECT_FALSE(view_box(view_state{}).on_pump({10.0, 10.0}));
}

TEST(view_box, has_fifteen_twips_a_pixel_while_the_box_has_the_size_of_the_drawing) {
    const view_box box(sample_place(6000));
    EXPECT_EQ(box.on_box({3000.0, 6000.0}), (point2{200.0, 400.0}));
    EXPECT_EQ(box.side(), 400.0);
}

TEST(view_box, is_filled_by_the_drawing_at_another_size) {
    view_state state = sample_place(6000);
    for (const int side : {1500, 9000, 32767}) {
        state.view_size = static_cast<std::int16_t>(side);
        const view_box box(state);
        EXPECT_NEAR(box.on_box({6000.0, 6000.0}).x, side / 15.0, 1e-9);
        // The outside diameter takes 95 % of the side.
        EXPECT_NEAR(box.pixels_of_mm(sample_design().maxdiameter), 0.95 * side / 15.0, 1e-9);
    }
}

TEST(view_box, keeps_one_to_one_for_a_box_that_is_gone) {
    view_state state = sample_place(6000);
    state.view_size = -30;
    EXPECT_EQ(view_box(state).on_box({150.0, 0.0}), (point2{10.0, 0.0}));
}

TEST(view_box, maps_the_mouse_back_to_where_the_drawing_has_it) {
    random_values random(property_seed());
    for (int left = property_count(200); left > 0; --left) {
        view_state state = sample_place(6000);
        state.view_cx = random.real(-9000.0, 9000.0);
        state.view_size = static_cast<std::int16_t>(random.real(300.0, 32000.0));
        const view_box box(state);
        const point2 mouse{random.real(-50.0, 2000.0), random.real(-50.0, 2000.0)};
        const point2 drawing = box.on_drawing(mouse);
        EXPECT_NEAR(box.on_box(drawing).x, mouse.x, 1e-9);
        EXPECT_NEAR(box.on_box(drawing).y, mouse.y, 1e-9);
        const auto pump = box.on_pump(mouse);
        const auto cursor = cursor_position(drawing.x, drawing.y, state);
        ASSERT_TRUE(pump);
        EXPECT_NEAR(pump->x, cursor->x, 1e-9);
        EXPECT_NEAR(pump->y, cursor->y, 1e-9);
        EXPECT_NEAR(distance(box.of_pump(*pump), mouse), 0.0, 1e-9);
    }
}

TEST(view_box, is_that_of_the_present_size_after_a_zoom) {
    view_state state = sample_place(6000);
    state.view_size = 3000;
    state.zoom_start_x = state.zoom_start_y = 1000;
    state.zoom_end_x = state.zoom_end_y = 4000;
    const point2 corner = *view_box(state).on_pump(view_box(state).on_box({1000.0, 1000.0}));
    zoom_to_band(sample_design(), state);
    EXPECT_EQ(state.drawn_size, 3000);
    const point2 after = view_box(state).of_pump(corner);
    EXPECT_NEAR(after.x, 0.0, 1e-9);
    EXPECT_NEAR(after.y, 0.0, 1e-9);
}

}  // namespace
}  // namespace kvt
