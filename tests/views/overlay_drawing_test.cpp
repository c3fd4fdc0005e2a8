// overlay_drawing: another design stands in the view as the calculated one would.
#include "views/overlay_drawing.hpp"

#include "app/program.hpp"
#include "support/cnc_design.hpp"
#include "views/port_lines.hpp"
#include "views/rotation.hpp"
#include "views/zoom.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr overlaid_outlines EVERYTHING{true, true, true, true};

design_view drawn_over_itself(const program& kavetta, const overlaid_outlines& which) {
    return overlay_drawing(kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params,
                           which, kavetta.view_state);
}

void expect_same_rotors(const design_view& drawn, const design_view& calculated) {
    EXPECT_EQ(drawn.Line1.elements, calculated.Line1.elements);
    EXPECT_EQ(drawn.Picture1, calculated.Picture1);
    EXPECT_EQ(drawn.Shape1.diameter, calculated.Shape1.diameter);
    EXPECT_EQ(drawn.Shape1.x, calculated.Shape1.x);
}

}  // namespace

TEST(overlay_drawing, of_the_calculated_design_lies_exactly_on_it) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    const design_view drawn = drawn_over_itself(kavetta, EVERYTHING);
    expect_same_rotors(drawn, kavetta.design_view);
    EXPECT_EQ(drawn.inlet_portline.elements, kavetta.design_view.inlet_portline.elements);
    EXPECT_EQ(drawn.outlet_portline.elements, kavetta.design_view.outlet_portline.elements);
    EXPECT_EQ(drawn.metering_groove_portline.elements,
              kavetta.design_view.metering_groove_portline.elements);
}

TEST(overlay_drawing, stays_on_it_in_a_box_of_another_size) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    kavetta.view_state.view_size = 4500;
    expect_same_rotors(drawn_over_itself(kavetta, EVERYTHING), kavetta.design_view);
}

TEST(overlay_drawing, follows_the_turn) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    turn_to(kavetta.design_params, 33.0, kavetta.view_state);
    redraw_rotated(kavetta.design_params, kavetta.rotor_profiles, kavetta.view_state,
                   kavetta.design_view);
    expect_same_rotors(drawn_over_itself(kavetta, EVERYTHING), kavetta.design_view);
}

TEST(overlay_drawing, follows_the_zoom) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    kavetta.view_state.zoom_start_x = kavetta.view_state.zoom_start_y = 1000;
    kavetta.view_state.zoom_end_x = kavetta.view_state.zoom_end_y = 3000;
    zoom_to_band(kavetta.design_params, kavetta.view_state);
    redraw_zoomed(kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params,
                  kavetta.view_state, kavetta.design_view);
    EXPECT_EQ(drawn_over_itself(kavetta, EVERYTHING).Picture1, kavetta.design_view.Picture1);
    EXPECT_EQ(drawn_over_itself(kavetta, EVERYTHING).inlet_portline.elements,
              kavetta.design_view.inlet_portline.elements);
}

TEST(overlay_drawing, stands_at_its_own_eccentricity) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    design_params other = kavetta.design_params;
    other.ecc += 1.0;
    const design_view drawn = overlay_drawing(other, kavetta.rotor_profiles, kavetta.port_params,
                                              {.rotors = true}, kavetta.view_state);
    EXPECT_NEAR(drawn.Line1.elements[0].x1 - kavetta.design_view.Line1.elements[0].x1,
                kavetta.view_state.view_scale, 0.01);
}

TEST(overlay_drawing, leaves_out_what_there_is_not) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    const design_view ports = drawn_over_itself(kavetta, {.outlet = true});
    EXPECT_FALSE(has_rotors(ports));
    EXPECT_TRUE(ports.Picture1.empty());
    EXPECT_TRUE(shows_outline(ports.outlet_portline));
    EXPECT_FALSE(shows_outline(ports.inlet_portline));
    EXPECT_FALSE(shows_outline(ports.metering_groove_portline));
}

}  // namespace kvt
