// Tests of the lines of the ports in the Design view.
#include "views/port_lines.hpp"

#include "support/expect_failure.hpp"
#include "views/twips.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

namespace kvt {
namespace {

/// 100 twips a mm, origin at (1500, 1600), ecc 2 mm.
struct shown_ports {
    shown_ports() {
        state.view_scale = 100.0;
        state.view_cx = 1500.0;
        state.view_cy = 1600.0;
        state.view_ecc = 200.0;
        design.ecc = 2.0;
    }

    port_params ports;
    design_params design;
    view_state state;
    design_view view;
};

zeroed_array array_of(std::initializer_list<double> numbers) {
    zeroed_array array(numbers.size());
    std::copy(numbers.begin(), numbers.end(), array.begin());
    return array;
}

TEST(port_lines, an_element_is_a_segment_with_y_upwards) {
    shown_ports shown;
    shown.ports.inlet.x = array_of({1.0, 2.0, 1.0});
    shown.ports.inlet.y = array_of({-3.0, -4.0, -3.0});
    shown.ports.inlet.last = 2;
    draw_inlet_port(shown.ports, shown.state, shown.view);
    const line_array& lines = shown.view.inlet_portline;
    ASSERT_EQ(lines.elements.size(), 2U);
    EXPECT_TRUE(lines.element0_visible);
    // x = 100 * 1 + 1500 + 200, y = 1600 - 100 * -3
    EXPECT_EQ(lines.elements[0], (drawn_line{1800.0F, 1900.0F, 1900.0F, 2000.0F}));
    EXPECT_EQ(lines.elements[1], (drawn_line{1900.0F, 2000.0F, 1800.0F, 1900.0F}));
}

TEST(port_lines, a_shorter_outline_leaves_no_elements_of_a_longer_one) {
    shown_ports shown;
    shown.ports.outlet.last = 9;
    draw_outlet_port(shown.ports, shown.state, shown.view);
    EXPECT_EQ(shown.view.outlet_portline.elements.size(), 9U);
    shown.ports.outlet.last = 3;
    draw_outlet_port(shown.ports, shown.state, shown.view);
    EXPECT_EQ(shown.view.outlet_portline.elements.size(), 3U);
}

TEST(port_lines, angle_lines_lead_from_the_rotor_centres_to_the_corners) {
    shown_ports shown;
    port_params& ports = shown.ports;
    ports.inlet.corners[START_INNER].p.x = 1.0;
    ports.inlet.corners[START_INNER].p.y = 5.0;
    ports.inlet.corners[END_INNER].p.x = 2.0;
    ports.inlet.corners[END_OUTER].p.x = 3.0;
    ports.inlet.corners[START_OUTER].p.x = 4.0;
    ports.inlet.corners[START_OUTER].p.y = 1.0;
    ports.outlet.corners[START_INNER].p.x = 5.0;
    ports.outlet.corners[START_INNER].p.y = 5.0;
    ports.outlet.corners[END_INNER].p.x = 6.0;
    ports.outlet.corners[END_OUTER].p.x = 7.0;
    ports.outlet.corners[START_OUTER].p.x = 8.0;
    draw_port_angles(ports, shown.design, shown.state, shown.view);
    const line_array& inner = shown.view.angleline;
    ASSERT_EQ(inner.elements.size(), 4U);
    EXPECT_EQ(inner.elements[0], (drawn_line{1700.0F, 1600.0F, 1800.0F, 2100.0F}))
        << "the inlet lies below";
    EXPECT_EQ(inner.elements[1].x2, 1900.0F);
    EXPECT_EQ(inner.elements[2], (drawn_line{1700.0F, 1600.0F, 2200.0F, 1100.0F}));
    EXPECT_EQ(inner.elements[3].x2, 2300.0F);
    const line_array& outer = shown.view.anglelineout;
    ASSERT_EQ(outer.elements.size(), 4U);
    EXPECT_EQ(outer.elements[0], (drawn_line{1500.0F, 1600.0F, 2100.0F, 1700.0F}))
        << "from (-ecc, 0) to p4";
    EXPECT_EQ(outer.elements[1].x2, 2000.0F);
    EXPECT_EQ(outer.elements[2].x2, 2500.0F);
    EXPECT_EQ(outer.elements[3].x2, 2400.0F);
}

TEST(port_lines, the_groove_is_split_where_it_enters_the_port) {
    shown_ports shown;
    shown.ports.groove_main_last = 4;
    shown.ports.groove_last = 6;
    shown.ports.groove_x[5] = 9.0;
    draw_metering_groove(shown.ports, shown.state, shown.view);
    EXPECT_EQ(shown.view.metering_groove_portline.elements.size(), 4U);
    ASSERT_EQ(shown.view.metering_groove_extraline.elements.size(), 2U);
    EXPECT_EQ(shown.view.metering_groove_extraline.elements[0].x2, 2600.0F);
}

TEST(port_lines, clearing_hides_all_six_arrays) {
    shown_ports shown;
    shown.ports.inlet.last = shown.ports.outlet.last = 5;
    shown.ports.groove_main_last = 4;
    shown.ports.groove_last = 6;
    draw_inlet_port(shown.ports, shown.state, shown.view);
    draw_outlet_port(shown.ports, shown.state, shown.view);
    draw_port_angles(shown.ports, shown.design, shown.state, shown.view);
    draw_metering_groove(shown.ports, shown.state, shown.view);
    EXPECT_TRUE(shows_outline(shown.view.inlet_portline));
    clear_port_lines(shown.view);
    EXPECT_FALSE(shows_outline(shown.view.inlet_portline));
    for (const line_array* lines :
         {&shown.view.inlet_portline, &shown.view.outlet_portline, &shown.view.angleline,
          &shown.view.anglelineout, &shown.view.metering_groove_portline,
          &shown.view.metering_groove_extraline}) {
        EXPECT_EQ(lines->elements.size(), 1U);
        EXPECT_FALSE(lines->element0_visible);
    }
}

TEST(port_lines, coordinates_too_large_fail) {
    shown_ports shown;
    shown.ports.inlet.x[1] = 1e300;
    shown.ports.inlet.last = 1;
    EXPECT_FAILURE(draw_inlet_port(shown.ports, shown.state, shown.view), failure::overflow);
}

}  // namespace
}  // namespace kvt
