// design_painting: colours, order and arcs on a known drawing.
#include "ui/parts/design_painting.hpp"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {

namespace {

QImage painted(const design_view& view) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    design_painting(view).paint(painter, sight_palette_on(false));
    return image;
}

void add_line(line_array& array, drawn_line line) {
    array.set(array.element0_visible ? array.elements.size() : 0, line);
}

int ink(const QImage& image, int x, int y) {
    return 255 - qGray(image.pixel(x, y));
}

}  // namespace

TEST(design_painting, of_nothing_leaves_the_paper_white) {
    const QImage image = painted(design_view{});
    EXPECT_EQ(image.pixel(50, 50), qRgb(255, 255, 255));
    EXPECT_TRUE(design_painting(design_view{}).is_empty());
}

TEST(design_painting, paints_each_line_array_in_its_colour) {
    const struct {
        line_array design_view::*member;
        QRgb colour;
    } cases[] = {{&design_view::Line1, qRgb(0, 0, 0)},
                 {&design_view::inlet_portline, qRgb(0, 0, 255)},
                 {&design_view::outlet_portline, qRgb(255, 0, 0)},
                 {&design_view::metering_groove_portline, qRgb(255, 128, 0)},
                 {&design_view::metering_groove_extraline, qRgb(0, 192, 0)}};
    for (const auto& row : cases) {
        design_view view;
        add_line(view.*row.member, {150, 750, 1350, 750});
        EXPECT_EQ(painted(view).pixel(50, 50), row.colour);
    }
}

TEST(design_painting, inner_rotor_lies_above_the_ports) {
    design_view view;
    add_line(view.Line1, {150, 750, 1350, 750});
    add_line(view.inlet_portline, {150, 750, 1350, 750});
    EXPECT_EQ(painted(view).pixel(50, 50), qRgb(0, 0, 0));
}

TEST(design_painting, an_element_that_is_hidden_is_not_painted) {
    design_view view;
    view.Line1.elements[0] = {150, 750, 1350, 750};
    EXPECT_EQ(painted(view).pixel(50, 50), qRgb(255, 255, 255));
}

TEST(design_painting, an_arc_runs_counter_clockwise_as_seen_on_the_screen) {
    design_view view;
    // A quarter from the right (0) to the top (pi/2) about (50, 50) with radius 40 pixels.
    view.Picture1.push_back({750, 750, 600, 0.0, std::numbers::pi / 2});
    const QImage image = painted(view);
    EXPECT_GT(ink(image, 78, 21), 150);
    EXPECT_EQ(ink(image, 21, 21), 0);
    EXPECT_EQ(ink(image, 78, 78), 0);
}

TEST(design_painting, an_arc_whose_end_is_before_its_start_goes_through_zero) {
    design_view view;
    view.Picture1.push_back({750, 750, 600, 1.5 * std::numbers::pi, std::numbers::pi / 2});
    const QImage image = painted(view);
    EXPECT_GT(ink(image, 90, 50), 150);
    EXPECT_EQ(ink(image, 10, 50), 0);
}

TEST(design_painting, an_outline_of_tiny_segments_is_as_thin_as_one_of_long_ones) {
    design_view view;
    for (int index = 0; index < 600; ++index) {
        const auto x = static_cast<float>(300 + index);
        add_line(view.Line1, {x, 750, x + 1, 750});
    }
    const QImage image = painted(view);
    EXPECT_EQ(ink(image, 40, 50), 255);
    EXPECT_EQ(ink(image, 40, 49), 255);
    EXPECT_EQ(ink(image, 40, 51), 0);
    EXPECT_EQ(ink(image, 40, 48), 0);
}

TEST(design_painting, keeps_corners_and_gaps) {
    design_view view;
    add_line(view.Line1, {150, 150, 150, 600});
    add_line(view.Line1, {150, 600, 600, 600});
    add_line(view.Line1, {900, 900, 1350, 900});
    const QImage image = painted(view);
    EXPECT_GT(ink(image, 10, 39), 200);
    EXPECT_GT(ink(image, 75, 60), 200);
    EXPECT_EQ(ink(image, 50, 50), 0);
}

TEST(design_painting,
     the_rubber_band_is_dotted_and_lies_above_the_ports_and_below_the_inner_rotor) {
    design_view view;
    view.Line3.visible = true;
    view.Line3.lines[0] = {150, 750, 1350, 750};
    const QImage alone = painted(view);
    int dark = 0;
    for (int x = 10; x < 90; ++x) {
        dark += ink(alone, x, 50) == 255 ? 1 : 0;
    }
    EXPECT_GT(dark, 20);
    EXPECT_LT(dark, 60);
    add_line(view.inlet_portline, {150, 750, 1350, 750});
    const QImage over_port = painted(view);
    int black = 0;
    for (int x = 10; x < 90; ++x) {
        black += over_port.pixel(x, 50) == qRgb(0, 0, 0) ? 1 : 0;
    }
    EXPECT_EQ(black, dark);
    add_line(view.Line1, {150, 750, 1350, 750});
    EXPECT_EQ(painted(view).pixel(11, 50), qRgb(0, 0, 0));
    EXPECT_EQ(painted(view).pixel(12, 50), qRgb(0, 0, 0));
}

TEST(design_painting, a_turn_takes_the_rotors_over_and_keeps_ports_and_band) {
    design_view view;
    add_line(view.inlet_portline, {150, 750, 1350, 750});
    design_painting painting(view);
    design_view turned;
    add_line(turned.Line1, {150, 300, 1350, 300});
    painting.take_rotors(turned);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painting.paint(painter, sight_palette_on(false));
    EXPECT_EQ(image.pixel(50, 50), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(50, 20), qRgb(0, 0, 0));
}

TEST(design_painting, a_band_that_nobody_sees_is_no_change) {
    design_painting painting;
    rubber_band band;
    EXPECT_FALSE(painting.take_band(band));
    band.visible = true;
    EXPECT_TRUE(painting.take_band(band));
    band.visible = false;
    EXPECT_TRUE(painting.take_band(band));
    EXPECT_TRUE(painting.is_empty());
}

TEST(design_painting, a_zoomed_arc_keeps_its_place_to_the_pixel) {
    // A radius of 40,000 pixels: the arc from the right to the top passes through (r cos a, r sin
    // a) for every a; one curve for a quarter turn would be off by 11 pixels at 21 degrees.
    for (const double a : {0.2, 0.37, 0.7, 1.2}) {
        const double radius = 600000.0;
        design_view view;
        view.Picture1.push_back({750.0 - radius * std::cos(a), 750.0 + radius * std::sin(a), radius,
                                 0.0, std::numbers::pi / 2});
        EXPECT_GT(ink(painted(view), 49, 49) + ink(painted(view), 50, 50), 200) << a;
    }
}

TEST(design_painting, leaves_out_what_lies_outside_of_any_picture) {
    design_view view;
    add_line(view.Line1, {60000, 60000, 90000, 60000});
    view.Picture1.push_back({60000, 60000, 600, 0.0, 3.0});
    EXPECT_TRUE(design_painting(view).is_empty());
    add_line(view.Line1, {-90000, 750, 90000, 750});  // its ends lie outside, its middle does not
    EXPECT_EQ(painted(view).pixel(50, 50), qRgb(0, 0, 0));
}

}  // namespace kvt
