// Tests of the STEP bodies of the ports: which there are, where they stand, how deep they are.
#include "output/step/step_ports.hpp"

#include "output/step/step_files.hpp"
#include "support/sample_design.hpp"
#include "support/step_reader.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A closed outline of 40 points about (cx, cy): point 40 repeats point 0.
void set_outline(zeroed_array& x, zeroed_array& y, std::int16_t& last, point2 centre, double radius,
                 bool clockwise) {
    last = 40;
    for (std::size_t i = 0; i <= 40; ++i) {
        const double angle =
            (clockwise ? -1.0 : 1.0) * std::acos(-1.0) * static_cast<double>(i % 40) / 20.0;
        x[i] = centre.x + radius * std::cos(angle);
        y[i] = centre.y + radius * std::sin(angle);
    }
}

struct port_bodies : testing::Test {
    design_params design = sample_design();  // thick 10, axial_clear 0.06
    port_params ports;
    entries boxes;

    port_bodies() {
        set_outline(ports.inlet.x, ports.inlet.y, ports.inlet.last, {3.0, -8.0}, 4.0, false);
        set_outline(ports.outlet.x, ports.outlet.y, ports.outlet.last, {3.0, 8.0}, 5.0, true);
        set_outline(ports.groove_x, ports.groove_y, ports.groove_last, {-9.0, 8.0}, 2.0, true);
        ports.groove_depth_mm = 1.5;
        boxes.metering_groove = "1";
    }

    std::optional<step_prism> body(step_port port) const {
        return port_body(port, design, ports, boxes);
    }
};

TEST_F(port_bodies, stand_below_the_rotors_with_the_whole_thickness) {
    const auto inlet = body(step_port::inlet_lower);
    ASSERT_TRUE(inlet);
    EXPECT_EQ(inlet->solid, "PORTING");
    EXPECT_EQ(inlet->product, "Inlet Port Lower");
    EXPECT_EQ(inlet->bottom, -10.0);
    EXPECT_EQ(inlet->depth, 10.0);
    EXPECT_EQ(body(step_port::outlet_lower)->product, "Outlet Port Lower");
    EXPECT_FALSE(body(step_port::inlet_upper));
    EXPECT_FALSE(body(step_port::outlet_upper));
}

TEST_F(port_bodies, are_half_as_deep_on_both_sides_with_double_sided_porting) {
    boxes.inlet_double_sided = "1";
    EXPECT_EQ(body(step_port::inlet_lower)->bottom, -5.0);
    EXPECT_EQ(body(step_port::inlet_upper)->bottom, 10.06);
    EXPECT_EQ(body(step_port::inlet_upper)->depth, 5.0);
    EXPECT_EQ(body(step_port::inlet_upper)->solid, "INLET UPPER PORTING");
    EXPECT_EQ(body(step_port::outlet_lower)->depth, 10.0);
    EXPECT_FALSE(body(step_port::outlet_upper));
}

TEST_F(port_bodies, have_a_fifth_of_the_thickness_as_shadow) {
    boxes.shadow_ports = "1";
    boxes.inlet_double_sided = "1";  // a double sided port has no shadow
    EXPECT_EQ(body(step_port::outlet_upper)->depth, 2.0);
    EXPECT_EQ(body(step_port::outlet_upper)->bottom, 10.06);
    EXPECT_EQ(body(step_port::outlet_upper)->product, "Outlet Port Upper");
    EXPECT_EQ(body(step_port::inlet_upper)->depth, 5.0);
}

TEST_F(port_bodies, hold_the_groove_only_when_it_is_ticked) {
    const auto groove = body(step_port::groove);
    ASSERT_TRUE(groove);
    EXPECT_EQ(groove->solid, "Metering Groove PORTING");
    EXPECT_EQ(groove->product, "Metering Groove");
    EXPECT_EQ(groove->bottom, -1.5);
    EXPECT_EQ(groove->depth, 1.5);
    boxes.metering_groove = "0";
    EXPECT_FALSE(body(step_port::groove));
}

TEST_F(port_bodies, walk_clockwise_outlines_backwards_from_point_0) {
    const std::vector<point2> contour = body(step_port::outlet_lower)->contour;
    ASSERT_EQ(contour.size(), 40U);
    EXPECT_EQ(contour[0], (point2{ports.outlet.x[0], ports.outlet.y[0]}));
    EXPECT_EQ(contour[1], (point2{ports.outlet.x[39], ports.outlet.y[39]}));
    EXPECT_EQ(contour[39], (point2{ports.outlet.x[1], ports.outlet.y[1]}));
    EXPECT_EQ(body(step_port::inlet_lower)->contour[1],
              (point2{ports.inlet.x[1], ports.inlet.y[1]}));
    for (const step_port port :
         {step_port::inlet_lower, step_port::outlet_lower, step_port::groove}) {
        EXPECT_GT(signed_area(body(port)->contour), 0.0);
    }
}

TEST_F(port_bodies, are_left_out_without_their_outline) {
    ports.inlet.last = 0;
    ports.groove_last = 5;  // too few points for a wall
    EXPECT_FALSE(body(step_port::inlet_lower));
    EXPECT_FALSE(body(step_port::groove));
    EXPECT_TRUE(body(step_port::outlet_lower));
}

TEST_F(port_bodies, keep_the_offset_of_their_kind_in_a_file_of_some) {
    boxes.shadow_ports = "1";
    ports.inlet.last = 0;
    text_lines out;
    write_step_ports(out, {"ports.stp", "", "2021.1.1"}, design, ports, boxes);
    const step_reader read(out.bytes());
    EXPECT_TRUE(read.unresolved().empty());
    EXPECT_TRUE(read.edges_not_used_twice().empty());
    EXPECT_TRUE(read.spline_problems().empty());
    EXPECT_EQ(read.numbers_of("MANIFOLD_SOLID_BREP"),
              (std::vector<int>{1000011, 2000011, 4000011}));
    const std::vector<step_solid> solids = read.solids();
    EXPECT_EQ(solids[0].contours[0].z, -10.0);
    EXPECT_EQ(solids[0].contours[1].z, 0.0);
    EXPECT_EQ(solids[1].contours[0].z, 10.06);
    EXPECT_EQ(solids[1].contours[1].z, 12.06);
    EXPECT_NE(out.bytes().find("#1000037 = CARTESIAN_POINT ( 'NONE',  ( 8, 8, -10 ) ) ;"),
              std::string::npos);
    EXPECT_NE(
        out.bytes().find(
            "#4000089 = PRODUCT('Metering Groove','Metering Groove','STEP AP203',(#4000088));"),
        std::string::npos);
}

TEST_F(port_bodies, are_single_in_the_files_of_the_simulation_exchange) {
    text_lines inlet, outlet;
    write_step_inlet_port(inlet, {"in_port_GT.stp", "", "2021.1.1"}, design, ports, boxes);
    write_step_outlet_port(outlet, {"out_port_GT.stp", "", "2021.1.1"}, design, ports, boxes);
    EXPECT_EQ(step_reader(inlet.bytes()).numbers_of("MANIFOLD_SOLID_BREP"), std::vector<int>{11});
    EXPECT_EQ(step_reader(outlet.bytes()).numbers_of("MANIFOLD_SOLID_BREP"),
              std::vector<int>{1000011});
}

TEST_F(port_bodies, leave_a_file_without_bodies_before_the_ports_are_designed) {
    text_lines out;
    write_step_ports(out, {"ports.stp", "", "2021.1.1"}, design, port_params(), boxes);
    EXPECT_EQ(step_reader(out.bytes()).entity_count(), 0U);
}

}  // namespace
}  // namespace kvt
