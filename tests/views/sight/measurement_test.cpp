// Tests of the measured line.
#include "views/sight/measurement.hpp"

#include "views/sight/sample_sight.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

const length_unit& MM = length_unit_of(MILLIMETRES);

view_box sample_box() {
    return view_box(sample_place(6000));
}

sight_drawing drawn(const measurement& measured) {
    sight_drawing drawing;
    add_measurement(measured, MM, ENGLISH, sample_box(), letters_of(6.0, 14.0), drawing);
    return drawing;
}

TEST(measurement, takes_two_points_and_begins_anew_with_a_third) {
    measurement measured;
    measured.set_point({1.0, 1.0});
    EXPECT_FALSE(measured.far_end());
    measured.pointer = point2{3.0, 3.0};
    EXPECT_EQ(measured.far_end(), (point2{3.0, 3.0}));
    measured.set_point({4.0, 5.0});
    EXPECT_EQ(measured.far_end(), (point2{4.0, 5.0}));
    measured.set_point({9.0, 9.0});
    EXPECT_EQ(measured.first, (point2{9.0, 9.0}));
    EXPECT_FALSE(measured.second);
}

TEST(measured_texts, are_the_distance_and_its_parts_in_the_unit) {
    EXPECT_EQ(measured_texts({1.0, 1.0}, {4.0, -3.0}, MM, ENGLISH),
              (std::array<std::string, 3>{"5 mm", "dx 3 mm", "dy -4 mm"}));
    EXPECT_EQ(measured_texts({0.0, 0.0}, {25.4, 12.7}, length_unit_of(INCHES), ENGLISH),
              (std::array<std::string, 3>{"1.11803 in", "dx 1 in", "dy 0.5 in"}));
}

TEST(add_measurement, draws_the_line_from_point_to_point_with_its_texts) {
    measurement measured;
    measured.set_point({-5.0, -5.0});
    measured.set_point({7.0, 0.0});
    const sight_drawing drawing = drawn(measured);
    const sight_line& line = drawing.lines.back();
    EXPECT_EQ(line.from, sample_box().of_pump({-5.0, -5.0}));
    EXPECT_EQ(line.to, sample_box().of_pump({7.0, 0.0}));
    ASSERT_EQ(drawing.texts.size(), 3U);
    EXPECT_EQ(drawing.texts[0].text, "13 mm");
    EXPECT_EQ(drawing.arrows.size(), 2U);
}

TEST(add_measurement, keeps_its_texts_in_the_box_and_apart) {
    for (const double y : {-25.0, 0.0, 25.0}) {
        measurement measured;
        measured.set_point({0.0, 0.0});
        measured.set_point({25.0, y});
        const sight_drawing drawing = drawn(measured);
        for (std::size_t i = 0; i < drawing.texts.size(); ++i) {
            const sight_text& text = drawing.texts[i];
            EXPECT_GE(text.corner.y, 0.0);
            EXPECT_LE(text.corner.y + text.height, 400.0);
            EXPECT_LE(text.corner.x + text.width, 400.0);
            EXPECT_TRUE(i == 0 || text.corner.y >= drawing.texts[i - 1].corner.y + text.height);
        }
    }
}

TEST(add_measurement, rings_the_pointer_where_it_has_snapped) {
    measurement measured;
    measured.pointer = point2{1.0, 2.0};
    EXPECT_TRUE(drawn(measured).circles.empty());
    measured.pointer_kind = snap_kind::profile;
    ASSERT_EQ(drawn(measured).circles.size(), 1U);
    EXPECT_FALSE(drawn(measured).circles[0].is_filled);
    measured.pointer_kind = snap_kind::centre;
    EXPECT_TRUE(drawn(measured).circles[0].is_filled);
}

}  // namespace
}  // namespace kvt
