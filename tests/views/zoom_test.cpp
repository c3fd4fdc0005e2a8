// Tests of the zoom: the rubber band, the new scale and place, and everything drawn at it.
#include "views/zoom.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"
#include "views/port_lines.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

view_state state_for(const design_params& design) {
    view_state state;
    set_plot_scale(design, state);
    state.view_cx = 1500.0;
    state.view_cy = 1500.0;
    return state;
}

TEST(rubber_band, starts_as_a_point_with_rounded_corner) {
    view_state state;
    design_view view;
    start_rubber_band(100.5, 201.5, state, view);
    EXPECT_EQ(state.zoom_start_x, 100);  // half to even
    EXPECT_EQ(state.zoom_start_y, 202);
    EXPECT_TRUE(view.Line3.visible);
    for (const drawn_line& line : view.Line3.lines) {
        EXPECT_EQ(line, (drawn_line{100.5F, 201.5F, 100.5F, 201.5F}));
    }
}

TEST(rubber_band, stretches_to_the_mouse_also_while_invisible) {
    view_state state;
    design_view view;
    start_rubber_band(100.0, 200.0, state, view);
    view.Line3.visible = false;
    stretch_rubber_band(400.0, -50.0, view);
    EXPECT_EQ(view.Line3.lines[0], (drawn_line{100.0F, 200.0F, 400.0F, 200.0F}));
    EXPECT_EQ(view.Line3.lines[1], (drawn_line{100.0F, 200.0F, 100.0F, -50.0F}));
    EXPECT_EQ(view.Line3.lines[2], (drawn_line{100.0F, -50.0F, 400.0F, -50.0F}));
    EXPECT_EQ(view.Line3.lines[3], (drawn_line{400.0F, 200.0F, 400.0F, -50.0F}));
    EXPECT_FALSE(view.Line3.visible);
}

TEST(rubber_band, orders_its_corners_and_hides) {
    view_state state;
    design_view view;
    start_rubber_band(400.0, 300.0, state, view);
    EXPECT_TRUE(end_rubber_band(-100.0, 700.0, state, view));
    EXPECT_EQ(state.zoom_start_x, -100);
    EXPECT_EQ(state.zoom_end_x, 400);
    EXPECT_EQ(state.zoom_start_y, 300);
    EXPECT_EQ(state.zoom_end_y, 700);
    EXPECT_FALSE(view.Line3.visible);
}

TEST(rubber_band, without_width_or_height_zooms_nothing) {
    view_state state;
    design_view view;
    start_rubber_band(400.0, 300.0, state, view);
    EXPECT_FALSE(end_rubber_band(400.4, 700.0, state, view));
    start_rubber_band(400.0, 300.0, state, view);
    EXPECT_FALSE(end_rubber_band(500.0, 299.6, state, view));
}

TEST(rubber_band, fails_at_corners_beyond_16_bits) {
    view_state state;
    design_view view;
    EXPECT_FAILURE(start_rubber_band(32767.5, 0.0, state, view), failure::overflow);
    EXPECT_FAILURE(start_rubber_band(0.0, -32769.0, state, view), failure::overflow);
    start_rubber_band(32767.4, -32768.0, state, view);
    EXPECT_FAILURE(end_rubber_band(40000.0, 0.0, state, view), failure::overflow);
}

TEST(zoom_place, fits_the_larger_side_of_the_band) {
    view_state state = state_for(sample_design());
    const double scale = state.view_scale;
    state.zoom_start_x = 300;
    state.zoom_end_x = 1300;
    state.zoom_start_y = 600;
    state.zoom_end_y = 700;
    zoom_to_band(sample_design(), state);
    EXPECT_EQ(state.view_zoom, 3.0);
    EXPECT_EQ(state.view_scale, scale * 3.0);
    EXPECT_EQ(state.view_ecc, 2.85 * state.view_scale);
    EXPECT_EQ(state.view_cx, 3600.0);
    EXPECT_EQ(state.view_cy, 2700.0);
    state.zoom_end_y = 2100;  // now higher than wide
    zoom_to_band(sample_design(), state);
    EXPECT_EQ(state.view_zoom, 2.0);
    EXPECT_EQ(state.view_scale, scale * 3.0 * 2.0);
    EXPECT_EQ(state.view_cx, (3600.0 - 300.0) * 2.0);
    EXPECT_EQ(state.view_cy, (2700.0 - 600.0) * 2.0);
}

TEST(zoomed_drawing, has_inner_rotor_arcs_and_circle_at_the_new_place) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    view_state state = state_for(design);
    state.zoom_start_x = 500;
    state.zoom_start_y = 400;
    state.zoom_end_x = 2000;
    state.zoom_end_y = 1900;
    zoom_to_band(design, state);
    design_view view;
    redraw_zoomed(design, rotors, {}, state, view);
    const double s = 3000.0 * 0.95 / 52.0 * 2.0;
    EXPECT_EQ(view.Line1.elements.size(), 3601U);
    EXPECT_FLOAT_EQ(view.Line1.elements[0].x1,
                    static_cast<float>(s * rotors.inner_x[0] + 2000.0 + 2.85 * s));
    EXPECT_FLOAT_EQ(view.Line1.elements[0].y1, static_cast<float>(s * rotors.inner_y[0] + 2200.0));
    ASSERT_EQ(view.Picture1.size(), 28U);
    EXPECT_EQ(view.Picture1.back().x, 2000.0);
    EXPECT_EQ(view.Picture1.back().y, 2200.0);
    EXPECT_DOUBLE_EQ(view.Picture1.back().radius, 22.9 * s);
    EXPECT_TRUE(view.Shape1.visible);
    EXPECT_EQ(view.Shape1.x, 2000.0);
    EXPECT_DOUBLE_EQ(view.Shape1.diameter, 52.0 * s);
}

TEST(zoomed_drawing, at_the_first_scale_has_the_arcs_of_the_first_drawing) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    view_state state = state_for(design);
    design_view first;
    draw_outer_rotor(design, rotors, state, first);
    design_view again;
    redraw_zoomed(design, rotors, {}, state, again);
    EXPECT_EQ(again.Picture1, first.Picture1);
}

/// Ports with outlines of a few points.
port_params few_points() {
    port_params ports;
    ports.inlet.last = 4;
    ports.outlet.last = 3;
    ports.groove_main_last = 2;
    ports.groove_last = 5;
    for (std::size_t i = 0; i < 6; ++i) {
        ports.inlet.x[i] = 1.0 + static_cast<double>(i);
        ports.outlet.y[i] = 2.0 + static_cast<double>(i);
        ports.groove_x[i] = 3.0 + static_cast<double>(i);
    }
    return ports;
}

TEST(zoomed_drawing, has_the_ports_that_were_drawn_before) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    const port_params ports = few_points();
    view_state state = state_for(design);
    design_view view;
    draw_inlet_port(ports, state, view);
    draw_outlet_port(ports, state, view);
    draw_port_angles(ports, design, state, view);
    draw_metering_groove(ports, state, view);
    const design_view before = view;
    state.zoom_end_x = 1000;
    state.zoom_end_y = 1000;
    zoom_to_band(design, state);
    redraw_zoomed(design, rotors, ports, state, view);
    EXPECT_EQ(view.inlet_portline.elements.size(), 4U);
    EXPECT_EQ(view.outlet_portline.elements.size(), 3U);
    EXPECT_EQ(view.angleline.elements.size(), 4U);
    EXPECT_EQ(state.angleline_count, 4.0) << "the number before the drawing was cleared";
    EXPECT_EQ(view.anglelineout.elements.size(), 4U);
    EXPECT_EQ(view.metering_groove_portline.elements.size(), 2U);
    EXPECT_EQ(view.metering_groove_extraline.elements.size(), 3U);
    EXPECT_TRUE(view.inlet_portline.element0_visible);
    EXPECT_FLOAT_EQ(view.inlet_portline.elements[1].x2,
                    before.inlet_portline.elements[1].x2 * 3.0F);
}

TEST(zoomed_drawing, has_no_ports_when_none_were_drawn) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    design_view view;
    redraw_zoomed(design, rotor_pair_of(design), few_points(), state, view);
    EXPECT_EQ(state.angleline_count, 1.0);
    for (const line_array* lines :
         {&view.inlet_portline, &view.outlet_portline, &view.angleline, &view.anglelineout,
          &view.metering_groove_portline, &view.metering_groove_extraline}) {
        EXPECT_EQ(lines->elements.size(), 1U);
        EXPECT_FALSE(lines->element0_visible);
    }
}

TEST(zoomed_drawing, fails_where_a_coordinate_exceeds_single_precision) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    state.view_scale = 1e39;
    design_view view;
    EXPECT_FAILURE(redraw_zoomed(design, rotor_pair_of(design), {}, state, view),
                   failure::overflow);
}

TEST(zoom_at, keeps_the_place_under_the_pointer) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    const double scale = state.view_scale;
    EXPECT_TRUE(zoom_at(design, 2.0, 2000.0, 500.0, state));
    EXPECT_EQ(state.view_zoom, 2.0);
    EXPECT_EQ(state.view_scale, 2.0 * scale);
    EXPECT_EQ(state.view_ecc, design.ecc * 2.0 * scale);
    EXPECT_EQ(state.view_cx, 1000.0);  // 2000 + (1500 - 2000) 2
    EXPECT_EQ(state.view_cy, 2500.0);  // 500 + (1500 - 500) 2
}

TEST(zoom_at, draws_for_the_present_size_of_the_box) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    const double scale = state.view_scale;
    state.view_size = 6000;  // twice the drawing
    EXPECT_TRUE(zoom_at(design, 1.5, 2000.0, 1500.0, state));
    EXPECT_EQ(state.drawn_size, 6000);
    EXPECT_EQ(state.view_scale, 3.0 * scale);
    EXPECT_EQ(state.view_cx, 2500.0);  // 4000 + (1500 - 2000) 3
}

TEST(zoom_at, ends_at_a_smallest_and_a_largest_scale) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    const view_state before = state;
    for (const double factor : {0.19, 2001.0}) {
        EXPECT_FALSE(zoom_at(design, factor, 100.0, 100.0, state));
        EXPECT_EQ(state.view_scale, before.view_scale);
        EXPECT_EQ(state.view_cx, before.view_cx);
    }
}

TEST(pan_by, moves_the_place_alone) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    const double scale = state.view_scale;
    pan_by(-300.0, 40.0, state);
    EXPECT_EQ(state.view_cx, 1200.0);
    EXPECT_EQ(state.view_cy, 1540.0);
    EXPECT_EQ(state.view_scale, scale);
}

}  // namespace
}  // namespace kvt
