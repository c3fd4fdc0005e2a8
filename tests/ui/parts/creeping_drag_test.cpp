// Dragging in steps of 20 twips; 15 twips are a pixel.
#include "ui/parts/creeping_drag.hpp"

#include <gtest/gtest.h>

namespace kvt {

TEST(creeping_drag, steps_20_twips_towards_the_mouse_in_each_direction) {
    creeping_drag drag;
    drag.press(Qt::LeftButton, {100, 100});
    EXPECT_EQ(drag.step({102, 100}), QPointF(20, 0));
    EXPECT_EQ(drag.step({98, 130}), QPointF(-20, 20));
    EXPECT_EQ(drag.step({500, -500}), QPointF(20, -20));
}

TEST(creeping_drag, twenty_twips_are_not_enough_more_are) {
    creeping_drag drag;
    drag.press(Qt::LeftButton, {0, 0});
    EXPECT_EQ(drag.step({20.0 / 15.0, -20.0 / 15.0}), QPointF(0, 0));
    EXPECT_EQ(drag.step({20.1 / 15.0, -20.1 / 15.0}), QPointF(20, -20));
}

TEST(creeping_drag, the_place_of_the_press_stays) {
    creeping_drag drag;
    drag.press(Qt::LeftButton, {100, 100});
    EXPECT_EQ(drag.step({110, 100}), QPointF(20, 0));
    EXPECT_EQ(drag.step({110, 100}), QPointF(20, 0));
}

TEST(creeping_drag, another_button_ends_it_and_so_does_the_release) {
    creeping_drag drag;
    EXPECT_EQ(drag.step({50, 50}), QPointF(0, 0));
    drag.press(Qt::LeftButton, {0, 0});
    drag.press(Qt::RightButton, {0, 0});
    EXPECT_FALSE(drag.is_on());
    EXPECT_EQ(drag.step({50, 50}), QPointF(0, 0));
    drag.press(Qt::LeftButton, {0, 0});
    drag.release();
    EXPECT_EQ(drag.step({50, 50}), QPointF(0, 0));
}

}  // namespace kvt
