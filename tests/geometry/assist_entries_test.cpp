// Tests of the Design assist's entries: refusals, reading, required capacity, writing back.
#include "geometry/assist_entries.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <array>
#include <gtest/gtest.h>

namespace kvt {
namespace {

struct refused_row {
    std::string entries::*entry;
    message text;
};

constexpr std::array<refused_row, 9> REFUSED = {{
    {&entries::volumereqd, message::input_volumereqd},
    {&entries::numlobes, message::input_numlobes},
    {&entries::shaftdiameter, message::input_shaftdiameter},
    {&entries::clearn, message::input_clearn},
    {&entries::thick, message::input_thick},
    {&entries::minmaterial, message::input_minmaterial},
    {&entries::maxdiameter, message::input_maxdiameter},
    {&entries::axial_clear, message::input_axial_clear},
    {&entries::radial_clear, message::input_radial_clear},
}};

TEST(assist_entries, pass_when_all_nine_are_above_0) {
    entries boxes = sample_entries();
    boxes.ecc = "0";
    boxes.radinnroot = "0";
    boxes.radouter = "0";
    EXPECT_FALSE(first_refused_assist_entry(boxes).has_value());
}

TEST(assist_entries, are_refused_at_0_below_0_and_empty_each_with_its_message) {
    for (const auto& [entry, text] : REFUSED) {
        for (const char* typed : {"0", "-1", "", "abc"}) {
            entries boxes = sample_entries();
            boxes.*entry = typed;
            EXPECT_EQ(first_refused_assist_entry(boxes), text) << typed;
        }
    }
}

TEST(assist_entries, are_refused_in_their_order) {
    entries boxes = sample_entries();
    for (const refused_row& row : REFUSED) {
        boxes.*row.entry = "0";
    }
    for (const auto& [entry, text] : REFUSED) {
        EXPECT_EQ(first_refused_assist_entry(boxes), text);
        boxes.*entry = "1";
    }
    EXPECT_FALSE(first_refused_assist_entry(boxes).has_value());
}

TEST(assist_entries, are_read_in_millimetres_and_in_inches) {
    design_params design;
    read_assist_entries(sample_entries(), length_unit_of(MILLIMETRES), design);
    EXPECT_EQ(design.numlobes, 7);
    EXPECT_EQ(design.clearn_half, 0.06);
    EXPECT_EQ(design.shaftdiameter, 18.0);
    EXPECT_EQ(design.maxdiameter, 52.0);
    EXPECT_EQ(design.ecc, 0.0);
    read_assist_entries(sample_entries(), length_unit_of(INCHES), design);
    EXPECT_EQ(design.numlobes, 7);
    EXPECT_EQ(design.clearn_half, 0.06 * 25.4);
    EXPECT_EQ(design.thick, 254.0);
    EXPECT_EQ(design.minmaterial, 2.5 * 25.4);
    EXPECT_EQ(design.axial_clear, 0.06 * 25.4);
    EXPECT_EQ(design.radial_clear, 0.15 * 25.4);
}

TEST(assist_entries, fail_when_inches_leave_the_range_of_a_double) {
    entries boxes = sample_entries();
    boxes.thick = "1E308";
    design_params design;
    EXPECT_FAILURE(read_assist_entries(boxes, length_unit_of(INCHES), design), failure::overflow);
}

TEST(required_capacity, is_rounded_once_after_the_factor) {
    entries boxes;
    boxes.volumereqd = "0.00003";
    EXPECT_EQ(required_capacity_cc(boxes, 1).text(), "0");
    EXPECT_EQ(required_capacity_cc(boxes, 2).text(), "0.0001");  // 0.00011355
    EXPECT_EQ(required_capacity_cc(boxes, 5).text(), "0.0005");  // 0.00049161
    boxes.volumereqd = "2";
    EXPECT_EQ(required_capacity_cc(boxes, 1).text(), "2");
    EXPECT_EQ(required_capacity_cc(boxes, 2).text(), "7.57");
    EXPECT_EQ(required_capacity_cc(boxes, 3).text(), "9.08");
    EXPECT_EQ(required_capacity_cc(boxes, 4).text(), "2");
    EXPECT_EQ(required_capacity_cc(boxes, 5).text(), "32.774");
    EXPECT_EQ(required_capacity_cc(boxes, 6).text(), "2");
}

TEST(required_capacity, fails_when_four_decimals_cannot_hold_it) {
    entries boxes;
    boxes.volumereqd = "1E15";
    EXPECT_FAILURE(required_capacity_cc(boxes, 1), failure::overflow);
}

TEST(assist_results, have_four_decimals_without_trailing_zeros) {
    design_params design;
    design.ecc = 2.84;
    design.radinnroot = 14.25;
    design.radouter = 7.0;
    design.outer_root = 22.769999999999996;
    entries boxes;
    write_root_and_eccentricity(design, length_unit_of(MILLIMETRES), boxes);
    write_lobe_radius(design, length_unit_of(MILLIMETRES), boxes);
    write_assist_outer_root(design, boxes);
    EXPECT_EQ(boxes.ecc, "2.84");
    EXPECT_EQ(boxes.radinnroot, "14.25");
    EXPECT_EQ(boxes.radouter, "7");
    EXPECT_EQ(boxes.outer_root, "22.77");
}

TEST(assist_results, are_inches_in_inch_mode_but_for_the_outer_root) {
    design_params design;
    design.ecc = 3.5367;
    design.radinnroot = 10.64;
    design.radouter = 8.75;
    design.outer_root = 21.2501;
    entries boxes;
    write_root_and_eccentricity(design, length_unit_of(INCHES), boxes);
    write_lobe_radius(design, length_unit_of(INCHES), boxes);
    write_assist_outer_root(design, boxes);
    EXPECT_EQ(boxes.ecc, "0.1392");         // 0.139240
    EXPECT_EQ(boxes.radinnroot, "0.4189");  // 0.418898
    EXPECT_EQ(boxes.radouter, "0.3445");    // 0.344488
    EXPECT_EQ(boxes.outer_root, "21.2501");
}

}  // namespace
}  // namespace kvt
