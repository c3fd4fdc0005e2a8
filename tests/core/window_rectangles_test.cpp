// Tests of the built-in window layout.
#include "core/window_rectangles.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

// Height, width, top and left in twips. The windows stand beside each other: Design, Performance,
// Design view.
TEST(window_rectangles, hold_the_built_in_layout) {
    const window_rectangles layout;
    EXPECT_EQ(layout.of("Form1"), (window_rectangle{8085, 5430, 0, 0}));
    EXPECT_EQ(layout.of("portdes"), (window_rectangle{2895, 10200, 8100, 0}));
    EXPECT_EQ(layout.of("viewwinfrm"), (window_rectangle{7185, 6375, 0, 8995}));
    EXPECT_EQ(layout.of("Perffrm"), (window_rectangle{8085, 3525, 0, 5450}));
    EXPECT_EQ(layout.of("select_graphs"), (window_rectangle{2355, 4395, 8100, 10220}));
    EXPECT_TRUE(layout.main_window_maximised);
}

// Two screens of 1000 x 600 pixels side by side, the second one 100 pixels lower.
const std::vector<window_rectangle> SCREENS = {{9000, 15000, 0, 0}, {9000, 15000, 1500, 15000}};

TEST(moved_onto, leaves_a_window_whose_title_can_be_reached) {
    const window_rectangle reachable[] = {
        {7500, 10500, 750, 600},     // inside
        {7500, 10500, 8850, 600},    // only its title row at the bottom
        {7500, 10500, 0, -9900},     // 40 pixels at the left
        {7500, 10500, -300, 0},      // half of the title row above the screen
        {7500, 10500, 1500, 29400},  // 40 pixels at the right of the second screen
        {30000, 90000, 0, 0},        // larger than both
        {1, 2, 3, 4},                // smaller than what can be dragged
    };
    for (const window_rectangle& window : reachable) {
        EXPECT_EQ(moved_onto(window, SCREENS), window) << window.left << ", " << window.top;
    }
}

TEST(moved_onto, moves_a_window_outside_every_screen_into_the_nearest) {
    EXPECT_EQ(moved_onto({7500, 10500, 750, 90000}, SCREENS),
              (window_rectangle{7500, 10500, 1500, 19500}));
    EXPECT_EQ(moved_onto({7500, 10500, -9000, 600}, SCREENS),
              (window_rectangle{7500, 10500, 0, 600}));
    EXPECT_EQ(moved_onto({7500, 10500, 600, -20000}, SCREENS),
              (window_rectangle{7500, 10500, 600, 0}));
    EXPECT_EQ(moved_onto({90000, 90000, 90000, 0}, SCREENS), (window_rectangle{90000, 90000, 0, 0}))
        << "its title is what counts";
}

TEST(moved_onto, stays_without_screens) {
    EXPECT_EQ(moved_onto({1, 2, 3, -99999}, {}), (window_rectangle{1, 2, 3, -99999}));
}

TEST(pixels_of, rounds_half_away_from_zero_within_what_a_window_system_has) {
    EXPECT_EQ(pixels_of(8085), 539);
    EXPECT_EQ(pixels_of(7.5F), 1);
    EXPECT_EQ(pixels_of(-7.5F), -1);
    EXPECT_EQ(pixels_of(7.4F), 0);
    EXPECT_EQ(pixels_of(3.4e38F), 32767);
    EXPECT_EQ(pixels_of(-3.4e38F), -32767);
}

TEST(window_rectangles, hold_nothing_of_windows_that_are_not_there) {
    const window_rectangles layout;
    EXPECT_EQ(layout.of("MDIForm1"), std::nullopt);
    EXPECT_EQ(layout.of("explain"), std::nullopt);
    EXPECT_EQ(layout.of("FLOW_graphview2"), std::nullopt);
}

TEST(window_rectangles, built_in_places_reach_to_the_view_and_the_charts) {
    EXPECT_EQ(built_in_area(), (window_rectangle{10995, 15370, 0, 0}));  // 8100+2895, 8995+6375
}

}  // namespace
}  // namespace kvt
