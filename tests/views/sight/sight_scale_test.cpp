// Tests of the grid and the scale bar of the Design view.
#include "views/sight/sight_scale.hpp"

#include "views/sight/sample_sight.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

const length_unit& MM = length_unit_of(MILLIMETRES);
const length_unit& INCH = length_unit_of(INCHES);

view_box box_of(std::int16_t size) {
    return view_box(sample_place(size));
}

TEST(step_from, is_the_least_step_that_is_not_below) {
    EXPECT_EQ(step_from(1.0), 1.0);
    EXPECT_EQ(step_from(1.1), 2.0);
    EXPECT_EQ(step_from(2.5), 5.0);
    EXPECT_EQ(step_from(5.1), 10.0);
    EXPECT_DOUBLE_EQ(step_from(0.0003), 0.0005);
    EXPECT_EQ(step_from(400.0), 500.0);
}

TEST(step_up_to, is_the_largest_step_that_is_not_above) {
    EXPECT_EQ(step_up_to(1.0), 1.0);
    EXPECT_EQ(step_up_to(1.9), 1.0);
    EXPECT_EQ(step_up_to(4.9), 2.0);
    EXPECT_EQ(step_up_to(9.9), 5.0);
    EXPECT_DOUBLE_EQ(step_up_to(0.0499), 0.02);
    EXPECT_EQ(step_up_to(1000.0), 1000.0);
}

TEST(grid_step, keeps_the_lines_apart_in_either_unit) {
    // 400 pixels for 52 mm / 0.95: 7.3 pixels a mm, so 24 pixels are 3.3 mm or 0.13 inch.
    EXPECT_EQ(grid_step(box_of(6000), MM), 5.0);
    EXPECT_DOUBLE_EQ(grid_step(box_of(6000), INCH), 0.2);
    EXPECT_EQ(grid_step(view_box(), MM), 0.0);
}

TEST(length_text, has_its_unit_and_one_decimal_more_than_the_mouse) {
    EXPECT_EQ(length_text(2.85, MM, ENGLISH), "2.85 mm");
    EXPECT_EQ(length_text(1.23456, MM, ENGLISH), "1.235 mm");
    EXPECT_EQ(length_text(25.4 * 1.234567, INCH, ENGLISH), "1.23457 in");
}

TEST(add_grid, goes_through_the_inner_rotor_axis_and_stays_in_the_box) {
    const view_box box = box_of(6000);
    sight_drawing drawing;
    add_grid(box, MM, ENGLISH, letters_of(7.0, 14.0), drawing);
    const point2 axis = box.of_pump({0.0, 0.0});
    int axes = 0;
    for (const sight_line& line : drawing.grid) {
        for (const point2& end : {line.from, line.to}) {
            EXPECT_GE(std::min(end.x, end.y), 0.0);
            EXPECT_LE(std::max(end.x, end.y), box.side());
        }
        if (line.ink == sight_ink::grid_axis) {
            ++axes;
            EXPECT_TRUE(line.from.x == axis.x || line.from.y == axis.y);
        }
    }
    EXPECT_EQ(axes, 2);
    // 400 pixels are 54.7 mm: 11 steps of 5 mm in each direction, or one less.
    EXPECT_GE(drawing.grid.size(), 20U);
    EXPECT_LE(drawing.grid.size(), 22U);
}

TEST(add_grid, has_a_bar_as_long_as_its_text_says) {
    const view_box box = box_of(6000);
    sight_drawing drawing;
    add_grid(box, MM, ENGLISH, letters_of(7.0, 14.0), drawing);
    ASSERT_EQ(drawing.texts.size(), 1U);
    EXPECT_EQ(drawing.texts[0].text, "10 mm");
    const sight_line& bar = drawing.lines.front();
    EXPECT_NEAR(distance(bar.from, bar.to), box.pixels_of_mm(10.0), 1e-9);
    EXPECT_LE(distance(bar.from, bar.to), box.side() / 4.0);
}

TEST(add_grid, of_no_design_is_nothing) {
    sight_drawing drawing;
    add_grid(view_box(), MM, ENGLISH, letters_of(7.0, 14.0), drawing);
    EXPECT_TRUE(drawing.grid.empty());
    EXPECT_TRUE(drawing.lines.empty());
}

}  // namespace
}  // namespace kvt
