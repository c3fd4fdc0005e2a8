// Tests of the port entries: defaults, units, the rotor entries read again.
#include "ports/port_entries.hpp"

#include "base/number_text.hpp"
#include "support/expect_failure.hpp"
#include "support/port_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(port_entries, empty_angles_show_the_chamber_angles_cut_to_two_decimals_and_use_them_exactly) {
    port_design tested;
    tested.boxes = sample_entries();
    read_port_angles(inlet_fields(), tested.rotors, tested.boxes, tested.ports);
    EXPECT_EQ(tested.boxes.inlet_start_inner, "20.56");
    EXPECT_EQ(tested.boxes.inlet_start_outer, "17.23");
    EXPECT_EQ(tested.boxes.inlet_end_inner, "148.59") << "180 - 31.41";
    EXPECT_EQ(tested.boxes.inlet_end_outer, "145.02") << "180 - 34.98";
    EXPECT_EQ(tested.ports.inlet.corners[START_INNER].angle_deg, 20.5678);
    EXPECT_EQ(tested.ports.inlet.corners[START_OUTER].angle_deg, 17.2349);
    EXPECT_EQ(tested.ports.inlet.corners[END_INNER].angle_deg, 180.0 - 31.4159);
    EXPECT_EQ(tested.ports.inlet.corners[END_OUTER].angle_deg, 180.0 - 34.9876);
}

TEST(port_entries, the_next_run_takes_the_cut_text) {
    port_design tested;
    tested.boxes = sample_entries();
    read_port_angles(outlet_fields(), tested.rotors, tested.boxes, tested.ports);
    read_port_angles(outlet_fields(), tested.rotors, tested.boxes, tested.ports);
    EXPECT_EQ(tested.ports.outlet.corners[START_INNER].angle_deg, 20.56);
    EXPECT_EQ(tested.ports.outlet.corners[END_OUTER].angle_deg, 145.02);
}

TEST(port_entries, an_angle_of_a_blank_is_typed_and_reads_as_zero) {
    port_design tested;
    tested.boxes.inlet_start_inner = " ";
    read_port_angles(inlet_fields(), tested.rotors, tested.boxes, tested.ports);
    EXPECT_EQ(tested.ports.inlet.corners[START_INNER].angle_deg, 0.0);
    EXPECT_EQ(tested.boxes.inlet_start_inner, " ");
}

TEST(port_entries, radii_that_read_as_zero_take_those_of_the_rotors_uncut) {
    port_design tested;
    tested.boxes.inlet_inner_radius = "";
    tested.boxes.inlet_outer_radius = "0.0";
    fill_port_radii(inlet_fields(), tested.design, length_unit_of(MILLIMETRES), tested.boxes);
    EXPECT_EQ(tested.boxes.inlet_inner_radius, "14.15");
    EXPECT_EQ(tested.boxes.inlet_outer_radius, "22.9");
    tested.boxes.inlet_inner_radius = "x";
    fill_port_radii(inlet_fields(), tested.design, length_unit_of(INCHES), tested.boxes);
    EXPECT_EQ(tested.boxes.inlet_inner_radius, number_text(14.15 / 25.4));
    EXPECT_EQ(tested.boxes.inlet_outer_radius, "22.9") << "not 0, so it stays";
}

TEST(port_entries, inches_are_25_4_mm) {
    port_design tested;
    tested.boxes.Outlet_inner_radius = "0.5";
    tested.boxes.port_radii = "0.1";
    read_port_radii(outlet_fields(), tested.boxes, length_unit_of(INCHES), tested.ports);
    EXPECT_EQ(tested.ports.outlet.inner_r, 0.5 * 25.4);
    EXPECT_EQ(tested.ports.port_radius, 0.1 * 25.4);
}

TEST(port_entries, an_empty_fillet_radius_is_zero) {
    port_design tested;
    tested.boxes.port_radii = "";
    read_port_radii(inlet_fields(), tested.boxes, length_unit_of(MILLIMETRES), tested.ports);
    EXPECT_EQ(tested.ports.port_radius, 0.0);
}

TEST(port_entries, written_back_inches_are_cut_to_three_decimals) {
    EXPECT_EQ(cut_length_text(14.15, length_unit_of(INCHES)), "0.557")
        << "14.15 / 25.4 = 0.55708...";
    EXPECT_EQ(cut_length_text(14.155, length_unit_of(MILLIMETRES)), "14.155");
}

TEST(port_entries, the_rotor_entries_are_read_again_but_for_three) {
    port_design tested;
    tested.boxes.ecc = "3";
    tested.boxes.radinnroot = "15";
    tested.boxes.outer_root = "25";
    tested.boxes.fillet = "2";
    tested.boxes.radial_clear = "9";
    reread_design(tested.boxes, length_unit_of(MILLIMETRES), tested.design, tested.rotors);
    EXPECT_EQ(tested.design.ecc, 3.0);
    EXPECT_EQ(tested.design.clearn_half, 0.06);
    EXPECT_EQ(tested.rotors.lobe_centre_offset, 18.0);
    EXPECT_EQ(tested.rotors.base_radius, (7.5 + 15.0 + 3.0) / (1.0 / 6.0 + 1.0));
    EXPECT_EQ(tested.rotors.roll_radius, tested.rotors.base_radius / 6.0);
    EXPECT_EQ(tested.design.outer_root, 22.9);
    EXPECT_EQ(tested.design.fillet, 1.5);
    EXPECT_EQ(tested.design.radial_clear, 0.15);
    reread_design(tested.boxes, length_unit_of(INCHES), tested.design, tested.rotors);
    EXPECT_EQ(tested.design.ecc, 3.0 * 25.4);
    EXPECT_EQ(tested.design.clearn_half, 0.12 * 12.7);
}

TEST(port_entries, a_single_lobe_divides_by_zero) {
    port_design tested;
    tested.boxes.numlobes = "1";
    EXPECT_FAILURE(
        reread_design(tested.boxes, length_unit_of(MILLIMETRES), tested.design, tested.rotors),
        failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
