// Tests of the Design view in words: both languages, both units, and what is not drawn.
#include "views/design_view_text.hpp"

#include "core/app_state.hpp"
#include "support/sample_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr drawn_line ANY_LINE = {0.0F, 0.0F, 1.0F, 1.0F};

void draw_outline(line_array& lines) {
    lines.set(0, ANY_LINE);
    lines.set(1, ANY_LINE);
}

design_view view_with_rotors() {
    design_view view;
    draw_outline(view.Line1);
    view.Picture1.emplace_back();
    view.Shape1.visible = true;
    return view;
}

view_state turned_by(double degrees) {
    view_state state;
    state.rotation_angle = degrees;
    return state;
}

std::string text_of(const design_view& view, const view_state& state, std::int16_t unit,
                    std::int16_t language) {
    return design_view_text(sample_design(), state, view, length_unit_of(unit), language);
}

TEST(design_view_text, says_that_nothing_is_drawn) {
    EXPECT_EQ(text_of({}, {}, MILLIMETRES, ENGLISH), "No rotors are drawn.");
    EXPECT_EQ(text_of({}, {}, MILLIMETRES, GERMAN), "Es sind keine Rotoren gezeichnet.");
}

TEST(design_view_text, names_the_pair_and_its_angle) {
    EXPECT_EQ(text_of(view_with_rotors(), turned_by(12.0), MILLIMETRES, ENGLISH),
              "Inner rotor with lobes: 6, outer rotor with lobes: 7, largest outer diameter 52 mm, "
              "eccentricity 2.85 mm. Turned by 12°. No ports are drawn.");
}

// 52 / 25.4 = 2.04724, 2.85 / 25.4 = 0.112205
TEST(design_view_text, has_the_lengths_in_the_unit_in_force) {
    EXPECT_EQ(text_of(view_with_rotors(), turned_by(0.0), INCHES, GERMAN),
              "Innerer Rotor, Zähne: 6, äußerer Rotor, Zähne: 7, größter Außendurchmesser "
              "2.04724 in, Exzentrizität 0.1122 in. Gedreht um 0°. Es sind keine Anschlüsse "
              "gezeichnet.");
}

TEST(design_view_text, names_the_ports_that_are_drawn) {
    design_view view = view_with_rotors();
    draw_outline(view.inlet_portline);
    EXPECT_EQ(drawn_ports_text(view, ENGLISH), "Ports: inlet.");
    draw_outline(view.outlet_portline);
    draw_outline(view.metering_groove_portline);
    EXPECT_EQ(drawn_ports_text(view, ENGLISH), "Ports: inlet, outlet, metering groove.");
    EXPECT_EQ(drawn_ports_text(view, GERMAN), "Anschlüsse: Einlass, Auslass, Messrille.");
}

TEST(design_view_text, tells_a_marked_chamber) {
    view_state state = turned_by(30.0);
    state.marked_chamber = chamber_place{};
    EXPECT_TRUE(text_of(view_with_rotors(), state, MILLIMETRES, ENGLISH)
                    .ends_with("No ports are drawn. One chamber is marked."));
}

}  // namespace
}  // namespace kvt
