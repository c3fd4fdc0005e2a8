// Tests of the rules of the outer root radius.
#include "geometry/outer_root.hpp"

#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr std::int16_t LANGUAGE = 1;

/// The sample design: minimum 14.15 + 3 * 2.85 = 22.7 mm, maximum trochoid_r = 24.44 mm.
struct outer_root_rules : testing::Test {
    design_params design = sample_design();
    entries boxes = sample_entries();
    scripted_user person;

    void run(bool inches = false) {
        apply_outer_root_rules(prepared_rotors(design),
                               length_unit_of(inches ? INCHES : MILLIMETRES), LANGUAGE, design,
                               boxes, person);
    }
};

}  // namespace

TEST(outer_root_limits, are_the_clearing_radius_and_the_trochoid_radius) {
    const design_params design = sample_design();
    const outer_root_limits limits = limits_of_outer_root(design, prepared_rotors(design));
    EXPECT_NEAR(limits.minimum, 22.7, 1e-13);
    EXPECT_NEAR(limits.maximum, 24.44, 1e-13);
}

TEST(outer_root_limits, never_cross) {
    design_params design = sample_design();
    design.radouter = 5.0;  // trochoid_r = 21.94 < 22.7
    const outer_root_limits limits = limits_of_outer_root(design, prepared_rotors(design));
    EXPECT_EQ(limits.maximum, limits.minimum);
}

TEST_F(outer_root_rules, keep_a_radius_between_the_limits_without_a_word) {
    design.outer_root = 22.9;
    run();
    EXPECT_EQ(design.outer_root, 22.9);
    EXPECT_EQ(boxes.outer_root, "22.9");
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(outer_root_rules, fill_an_empty_entry_without_a_word) {
    boxes.outer_root = "";
    design.outer_root = 0.0;
    run();
    EXPECT_NEAR(design.outer_root, 22.7, 1e-13);
    EXPECT_EQ(boxes.outer_root, "22.7");
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(outer_root_rules, lower_a_radius_above_the_maximum) {
    boxes.outer_root = "30";
    design.outer_root = 30.0;
    run();
    EXPECT_EQ(design.outer_root, 24.44);
    EXPECT_EQ(boxes.outer_root, "24.44");
    EXPECT_EQ(person.messages,
              std::vector<std::string>{"Maximum value for Outer Rotor Root Radius is 24.44"});
}

TEST_F(outer_root_rules, raise_a_radius_below_the_minimum) {
    boxes.outer_root = "0";
    design.outer_root = 0.0;
    run();
    EXPECT_NEAR(design.outer_root, 22.7, 1e-13);
    EXPECT_EQ(boxes.outer_root, "22.7");
    EXPECT_EQ(person.messages,
              std::vector<std::string>{"Minimum value for Outer Rotor Root Radius is 22.7"});
}

TEST_F(outer_root_rules, store_the_full_minimum_but_show_15_digits_so_it_is_told_again) {
    design.numlobes = 4;
    design.ecc = 2.2;
    design.radouter = 6.0;
    design.radinnroot = 5.0;
    design.clearn_half = 0.03;
    boxes.outer_root = "0";
    design.outer_root = 0.0;
    run();
    EXPECT_EQ(design.outer_root, 11.600000000000001);
    EXPECT_EQ(boxes.outer_root, "11.6");
    design.outer_root = 11.6;  // the next run reads the text back
    run();
    EXPECT_EQ(person.messages.size(), 2U);
    EXPECT_EQ(design.outer_root, 11.600000000000001);
}

TEST_F(outer_root_rules, take_and_show_inches_in_inch_mode) {
    boxes.outer_root = "1";  // 25.4 mm, above 24.44
    design.outer_root = 0.0;
    run(true);
    EXPECT_EQ(boxes.outer_root, "0.962204724409449");
    EXPECT_EQ(design.outer_root, 0.962204724409449 * 25.4);
    EXPECT_EQ(
        person.messages,
        std::vector<std::string>{"Maximum value for Outer Rotor Root Radius is 0.962204724409449"});
}

TEST_F(outer_root_rules, in_inch_mode_leave_a_kept_radius_unconverted_and_raise_it) {
    // The text is 0.9 inch = 22.86 mm, between the limits; the kept number 0.9 counts as
    // millimetres.
    boxes.outer_root = "0.9";
    design.outer_root = 0.9;
    run(true);
    EXPECT_NEAR(design.outer_root, 22.7, 1e-13);
    EXPECT_EQ(boxes.outer_root, "0.893700787401575");
    EXPECT_EQ(
        person.messages,
        std::vector<std::string>{"Minimum value for Outer Rotor Root Radius is 0.893700787401575"});
}

TEST_F(outer_root_rules, are_told_in_english_in_either_language) {
    boxes.outer_root = "0";
    design.outer_root = 0.0;
    apply_outer_root_rules(prepared_rotors(design), length_unit_of(MILLIMETRES), 2, design, boxes,
                           person);
    EXPECT_EQ(person.messages,
              std::vector<std::string>{"Minimum value for Outer Rotor Root Radius is 22.7"});
}

TEST(typed_outer_root, is_kept_when_eccentricity_and_root_are_those_of_the_stored_design) {
    design_params design = sample_design();
    entries boxes = sample_entries();
    boxes.outer_root = "23.5";
    keep_or_drop_outer_root(boxes, design);
    EXPECT_EQ(design.outer_root, 23.5);
    EXPECT_EQ(boxes.outer_root, "23.5");
}

TEST(typed_outer_root, is_dropped_when_either_changed) {
    for (std::string entries::*changed : {&entries::ecc, &entries::radinnroot}) {
        design_params design = sample_design();
        entries boxes = sample_entries();
        boxes.*changed = "3";
        keep_or_drop_outer_root(boxes, design);
        EXPECT_EQ(design.outer_root, 0.0);
        EXPECT_EQ(boxes.outer_root, "0");
    }
}

TEST(diameter_check, passes_when_the_rotor_just_fits) {
    design_params design;
    design.outer_root = 22.5;
    design.minmaterial = 2.5;
    design.maxdiameter = 50.0;
    EXPECT_FALSE(exceeds_maximum_diameter(design));
    design.maxdiameter = 49.9375;
    EXPECT_TRUE(exceeds_maximum_diameter(design));
}

}  // namespace kvt
