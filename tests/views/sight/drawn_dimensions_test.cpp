// Tests of the dimension lines of the rotor pair.
#include "views/sight/drawn_dimensions.hpp"

#include "views/sight/sample_sight.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace kvt {
namespace {

view_box sample_box(std::int16_t size) {
    return view_box(sample_place(size));
}

sight_drawing drawn(const pair_turn& turn = {}, std::int16_t units = MILLIMETRES,
                    std::int16_t size = 6000) {
    sight_drawing drawing;
    add_dimensions(sample_design(), turn, length_unit_of(units), ENGLISH, sample_box(size),
                   letters_of(6.0, 14.0), drawing);
    return drawing;
}

std::vector<std::string> texts_of(const sight_drawing& drawing) {
    std::vector<std::string> texts;
    for (const sight_text& text : drawing.texts) {
        texts.push_back(text.text);
    }
    return texts;
}

bool has_line(const sight_drawing& drawing, const point2& from, const point2& to) {
    return std::ranges::any_of(drawing.lines, [&](const sight_line& line) {
        return distance(line.from, from) < 1e-6 && distance(line.to, to) < 1e-6;
    });
}

TEST(nearest_direction, goes_on_in_steps_of_the_pitch) {
    EXPECT_DOUBLE_EQ(nearest_direction(0.0, 4, 100.0), 90.0);
    EXPECT_DOUBLE_EQ(nearest_direction(10.0, 6, 310.0), 310.0);
    EXPECT_DOUBLE_EQ(nearest_direction(-350.0, 3, 50.0), 10.0);
}

TEST(add_dimensions, writes_the_six_dimensions_in_the_unit) {
    EXPECT_EQ(texts_of(drawn()), (std::vector<std::string>{"Ø 52 mm", "R 22.9 mm", "R 7.5 mm",
                                                           "R 14.15 mm", "Ø 18 mm", "e 2.85 mm"}));
    EXPECT_EQ(texts_of(drawn({}, INCHES)).front(), "Ø 2.04724 in");
}

TEST(add_dimensions, measures_the_outside_diameter_from_side_to_side) {
    const sight_drawing drawing = drawn();
    const view_box box = sample_box(6000);
    const double left = box.of_pump({-2.85 - 26.0, 0.0}).x;
    const double right = box.of_pump({-2.85 + 26.0, 0.0}).x;
    EXPECT_TRUE(std::ranges::any_of(drawing.lines, [&](const sight_line& line) {
        return std::abs(line.from.x - left) < 1e-9 && std::abs(line.to.x - right) < 1e-9 &&
               line.from.y == line.to.y && line.ink == sight_ink::dimension;
    }));
}

TEST(add_dimensions, ends_its_radii_on_root_and_lobe_as_they_are_turned) {
    const view_box box = sample_box(6000);
    for (const double outer_deg : {0.0, 20.0, 300.0}) {
        const sight_drawing drawing = drawn({outer_deg * 7.0 / 6.0, outer_deg});
        const point2 outer_axis{-2.85, 0.0};
        // A root stands half a pitch beside lobe 0, which has turned clockwise.
        const double root = nearest_direction(180.0 / 7.0 - outer_deg, 7, 50.0);
        const double radians = root / 180.0 * 3.14159265358979;
        EXPECT_TRUE(has_line(
            drawing, box.of_pump(outer_axis),
            box.of_pump({outer_axis.x + 22.9 * std::cos(radians), 22.9 * std::sin(radians)})))
            << outer_deg;
    }
}

TEST(add_dimensions, measures_the_eccentricity_between_the_axes) {
    const sight_drawing drawing = drawn();
    const view_box box = sample_box(6000);
    // Too narrow for two arrows between them: both tips stand on the extension lines.
    int tips = 0;
    for (const sight_arrow& arrow : drawing.arrows) {
        tips +=
            arrow.tip.x == box.of_pump({0.0, 0.0}).x || arrow.tip.x == box.of_pump({-2.85, 0.0}).x
                ? 1
                : 0;
    }
    EXPECT_EQ(tips, 2);
}

TEST(add_dimensions, draws_the_shaft_to_scale) {
    const sight_drawing drawing = drawn();
    ASSERT_EQ(drawing.circles.size(), 1U);
    EXPECT_EQ(drawing.circles[0].centre, sample_box(6000).of_pump({0.0, 0.0}));
    EXPECT_NEAR(drawing.circles[0].radius, sample_box(6000).pixels_of_mm(9.0), 1e-9);
}

TEST(add_dimensions, keeps_its_texts_in_a_box_of_any_size) {
    for (const int size : {1500, 3000, 12000}) {
        for (double deg = 0.0; deg < 360.0; deg += 15.0) {
            for (const sight_text& text :
                 drawn({deg, deg * 6.0 / 7.0}, MILLIMETRES, static_cast<std::int16_t>(size))
                     .texts) {
                EXPECT_GE(std::min(text.corner.x, text.corner.y), 0.0);
                EXPECT_LE(text.corner.x + text.width, size / 15.0);
                EXPECT_LE(text.corner.y + text.height, size / 15.0);
            }
        }
    }
}

}  // namespace
}  // namespace kvt
