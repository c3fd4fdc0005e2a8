// Tests of arrow heads, dimension lines and texts of the Design view.
#include "views/sight/sight_marks.hpp"

#include "views/sight/sample_sight.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

view_box box_of_200() {
    view_state state;
    state.view_size = 3000;
    return view_box(state);
}

TEST(add_arrow, ends_at_its_tip_and_comes_from_the_other_point) {
    sight_drawing drawing;
    add_arrow({50.0, 20.0}, {10.0, 20.0}, sight_ink::measure, drawing);
    ASSERT_EQ(drawing.arrows.size(), 1U);
    const sight_arrow& arrow = drawing.arrows[0];
    EXPECT_EQ(arrow.tip, (point2{50.0, 20.0}));
    EXPECT_EQ(arrow.left_foot, (point2{41.0, 17.5}));
    EXPECT_EQ(arrow.right_foot, (point2{41.0, 22.5}));
    EXPECT_EQ(arrow.ink, sight_ink::measure);
}

TEST(add_arrow, of_no_length_is_none) {
    sight_drawing drawing;
    add_arrow({5.0, 5.0}, {5.0, 5.0}, sight_ink::measure, drawing);
    EXPECT_TRUE(drawing.arrows.empty());
}

TEST(add_measured_line, has_its_arrows_inside_where_there_is_room) {
    sight_drawing drawing;
    add_measured_line({10.0, 20.0}, {90.0, 20.0}, sight_ink::dimension, drawing);
    ASSERT_EQ(drawing.lines.size(), 1U);
    EXPECT_EQ(drawing.lines[0].from, (point2{10.0, 20.0}));
    EXPECT_EQ(drawing.lines[0].to, (point2{90.0, 20.0}));
    ASSERT_EQ(drawing.arrows.size(), 2U);
    EXPECT_GT(drawing.arrows[0].left_foot.x, 10.0);
    EXPECT_LT(drawing.arrows[1].left_foot.x, 90.0);
}

TEST(add_measured_line, has_its_arrows_outside_of_a_narrow_gap) {
    sight_drawing drawing;
    add_measured_line({50.0, 20.0}, {60.0, 20.0}, sight_ink::dimension, drawing);
    ASSERT_EQ(drawing.arrows.size(), 2U);
    EXPECT_EQ(drawing.arrows[0].tip, (point2{50.0, 20.0}));
    EXPECT_LT(drawing.arrows[0].left_foot.x, 50.0);
    EXPECT_EQ(drawing.arrows[1].tip, (point2{60.0, 20.0}));
    EXPECT_GT(drawing.arrows[1].left_foot.x, 60.0);
    EXPECT_EQ(drawing.lines[0].from, (point2{32.0, 20.0}));
    EXPECT_EQ(drawing.lines[0].to, (point2{78.0, 20.0}));
}

TEST(add_text, stands_round_its_middle_and_is_moved_into_the_box) {
    sight_drawing drawing;
    add_text({100.0, 100.0}, "abc", sight_ink::dimension, box_of_200(), letters_of(10.0, 14.0),
             drawing);
    add_text({195.0, -5.0}, "abc", sight_ink::dimension, box_of_200(), letters_of(10.0, 14.0),
             drawing);
    EXPECT_EQ(drawing.texts[0].corner, (point2{83.0, 93.0}));  // 30 and 2 on either side
    EXPECT_EQ(drawing.texts[1].corner, (point2{164.0, 2.0}));
    EXPECT_FALSE(overlap(drawing.texts[0], drawing.texts[1]));
    EXPECT_TRUE(overlap(drawing.texts[0], drawing.texts[0]));
}

TEST(add_text, goes_with_its_place_when_that_lies_far_outside) {
    sight_drawing drawing;
    for (const point2& middle :
         {point2{-30.0, 50.0}, {230.0, 50.0}, {50.0, -30.0}, {50.0, 230.0}}) {
        add_text(middle, "abc", sight_ink::dimension, box_of_200(), letters_of(10.0, 14.0),
                 drawing);
    }
    EXPECT_TRUE(drawing.texts.empty());
}

}  // namespace
}  // namespace kvt
