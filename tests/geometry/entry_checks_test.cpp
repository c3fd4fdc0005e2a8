// Tests of the clean-up, the validation and the reading of the Design form's entries.
#include "geometry/entry_checks.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

struct clean_up : testing::Test {
    entries boxes = sample_entries();
    design_params design;
    scripted_user person;

    void run(std::int16_t language = ENGLISH_CODE) {
        clean_up_entries(boxes, design, person, language);
    }
    static constexpr std::int16_t ENGLISH_CODE = 1;
    static constexpr std::int16_t GERMAN_CODE = 2;
};

const std::string THICKNESS_MESSAGE =
    "The rotors must have a thickness to calculate the volumetric capacity! Use a thickness value "
    "= 1 if a volume per "
    "unit thickness is required.";
const std::string LOBE_MESSAGE =
    "The number of Outer Lobes must be an integer, of minimum value = 3";

}  // namespace

TEST_F(clean_up, leaves_a_sound_design_alone_and_stores_the_lobes) {
    run();
    EXPECT_EQ(boxes, sample_entries());
    EXPECT_EQ(design.numlobes, 7);
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(clean_up, tells_of_a_missing_thickness_before_the_lobes) {
    boxes.thick = "";
    boxes.numlobes = "2";
    run();
    EXPECT_EQ(person.messages, (std::vector{THICKNESS_MESSAGE, LOBE_MESSAGE}));
    EXPECT_EQ(boxes.thick, "1");
    EXPECT_EQ(boxes.numlobes, "3");
    EXPECT_EQ(design.numlobes, 3);
}

TEST_F(clean_up, speaks_german_for_language_2) {
    boxes.thick = "";
    boxes.numlobes = "2";
    run(GERMAN_CODE);
    ASSERT_EQ(person.messages.size(), 2U);
    EXPECT_EQ(person.messages[0], message_text(message::rotors_need_thickness, GERMAN_CODE));
    EXPECT_EQ(person.messages[1], message_text(message::lobe_number_minimum, GERMAN_CODE));
    EXPECT_NE(person.messages[0], THICKNESS_MESSAGE);
    EXPECT_NE(person.messages[1], LOBE_MESSAGE);
}

TEST_F(clean_up, refuses_2_7_lobes_although_they_round_to_3) {
    boxes.numlobes = "2.7";
    run();
    EXPECT_EQ(person.messages, std::vector{LOBE_MESSAGE});
    EXPECT_EQ(boxes.numlobes, "3");
}

TEST_F(clean_up, rounds_lobes_half_to_even_and_leaves_the_text) {
    boxes.numlobes = "4.5";
    run();
    EXPECT_EQ(design.numlobes, 4);
    EXPECT_EQ(boxes.numlobes, "4.5");
    boxes.numlobes = "5.5";
    run();
    EXPECT_EQ(design.numlobes, 6);
}

TEST_F(clean_up, fails_for_lobes_that_are_no_number) {
    for (const char* text : {"", "seven", "7 lobes", "7,0"}) {
        boxes.numlobes = text;
        EXPECT_FAILURE(run(), failure::type_mismatch);
    }
}

TEST_F(clean_up, sets_seven_empty_entries_to_0_and_no_others) {
    for (const entry_field& field : entry_fields()) {
        if (field.form == "Form1" && field.name != "numlobes" && field.name != "thick") {
            boxes.*field.member = "";
        }
    }
    run();
    EXPECT_TRUE(person.messages.empty());
    for (const char* zero : {"radinnroot", "radouter", "clearn", "volumereqd", "shaftdiameter",
                             "minmaterial", "fillet"}) {
        EXPECT_EQ(boxes.*find_entry(zero)->member, "0") << zero;
    }
    for (const char* empty :
         {"ecc", "maxdiameter", "axial_clear", "radial_clear", "outer_root", "coarseness"}) {
        EXPECT_EQ(boxes.*find_entry(empty)->member, "") << empty;
    }
}

TEST_F(clean_up, turns_commas_into_points_in_thirteen_entries) {
    for (const entry_field& field : entry_fields()) {
        if (field.form == "Form1" && field.name != "numlobes") {
            boxes.*field.member = "1,2,3";
        }
    }
    run();
    int changed = 0;
    for (const entry_field& field : entry_fields()) {
        changed += boxes.*field.member == "1.2.3" ? 1 : 0;
    }
    EXPECT_EQ(changed, 13);
    EXPECT_EQ(boxes.coarseness, "1,2,3");
}

TEST(validation, passes_the_sound_design) {
    EXPECT_FALSE(first_refused_entry(sample_entries()).has_value());
}

TEST(validation, asks_a_new_program_for_the_shaft_first) {
    const auto refused = first_refused_entry(entries{});
    ASSERT_TRUE(refused.has_value());
    EXPECT_EQ(message_text(refused->text, 1), "Input a value for the diameter of the shaft");
    EXPECT_EQ(refused->focus, "");
}

TEST(validation, refuses_the_entries_in_the_order_of_its_table) {
    struct row {
        const char* entry;
        const char* english;
    };
    const row rows[] = {
        {"numlobes", "Enter a value for the number of lobes. Value must be >= 3"},
        {"shaftdiameter", "Input a value for the diameter of the shaft"},
        {"clearn", "Input a value for the Tip Clearance"},
        {"thick",
         "Input a value for the gerotor thickness. Can be value of 1 if a volume per unit "
         "thickness is required"},
        {"minmaterial",
         "Input a value for the minimum thickness allowable between shaft and rotor profile"},
        {"maxdiameter", "Input the maximum allowable diameter"},
        {"axial_clear", "Input the axial clearance of the rotor set"},
        {"radial_clear", "Input the radial clearance of the rotor set"},
        {"ecc", "The Eccentricity cannot be equal to zero!!"},
        {"radinnroot", "Input the radius of the inner rotor root"},
        {"radouter", "Input the radius of the outer rotor lobes"},
        {"coarseness", "Input the drawing resolution (1-10)"},
    };
    entries boxes = sample_entries();
    for (const row& refused : rows) {
        boxes.*find_entry(refused.entry)->member = "0";
    }
    for (const row& refused : rows) {
        const auto first = first_refused_entry(boxes);
        ASSERT_TRUE(first.has_value()) << refused.entry;
        EXPECT_EQ(message_text(first->text, 1), refused.english);
        EXPECT_NE(message_text(first->text, 2), refused.english);
        EXPECT_EQ(first->focus, std::string_view(refused.entry) == "ecc" ? "ecc" : "");
        boxes.*find_entry(refused.entry)->member = "1";
    }
    EXPECT_FALSE(first_refused_entry(boxes).has_value());
}

TEST(validation, refuses_negative_values_and_texts_without_a_number) {
    for (const char* text : {"-0.1", "", "abc", ".", "-"}) {
        entries boxes = sample_entries();
        boxes.radial_clear = text;
        const auto refused = first_refused_entry(boxes);
        ASSERT_TRUE(refused.has_value()) << text;
        EXPECT_EQ(refused->text, message::input_radial_clear);
    }
}

TEST(validation, tests_the_eccentricity_as_a_text) {
    entries boxes = sample_entries();
    for (const char* refused : {"0", ""}) {
        boxes.ecc = refused;
        EXPECT_TRUE(first_refused_entry(boxes).has_value()) << refused;
    }
    for (const char* passed : {"0.0", "-1", "abc", " 0"}) {
        boxes.ecc = passed;
        EXPECT_FALSE(first_refused_entry(boxes).has_value()) << passed;
    }
}

TEST(reading, takes_millimetres_as_they_are_and_halves_the_clearance) {
    design_params design;
    rotor_profiles rotors;
    rotors.profile_points = PROFILE_POINTS;
    entries boxes = sample_entries();
    boxes.clearn = "0.2";
    boxes.coarseness = "9";
    read_entries(boxes, length_unit_of(MILLIMETRES), design, rotors);
    EXPECT_EQ(design.clearn_half, 0.1);
    EXPECT_EQ(design.numlobes, 7);
    EXPECT_EQ(design.ecc, 2.85);
    EXPECT_EQ(design.radouter, 7.5);
    EXPECT_EQ(design.radinnroot, 14.15);
    EXPECT_EQ(design.thick, 10.0);
    EXPECT_EQ(design.shaftdiameter, 18.0);
    EXPECT_EQ(design.minmaterial, 2.5);
    EXPECT_EQ(design.maxdiameter, 52.0);
    EXPECT_EQ(design.axial_clear, 0.06);
    EXPECT_EQ(design.radial_clear, 0.15);
    EXPECT_EQ(design.fillet, 1.5);
    EXPECT_EQ(design.coarseness, 9);
    EXPECT_EQ(design.outer_root, 0.0) << "the root radius has rules of its own";
    EXPECT_EQ(rotors.inner_plot_len, 801.0);
}

TEST(reading, converts_inches_and_takes_half_the_clearance_at_12_7) {
    design_params design;
    rotor_profiles rotors;
    rotors.profile_points = PROFILE_POINTS;
    entries boxes = sample_entries();
    for (const char* name :
         {"ecc", "radouter", "thick", "radinnroot", "shaftdiameter", "maxdiameter", "axial_clear",
          "radial_clear", "fillet", "minmaterial"}) {
        boxes.*find_entry(name)->member = "0.5";
    }
    boxes.clearn = "0.01";
    read_entries(boxes, length_unit_of(INCHES), design, rotors);
    EXPECT_EQ(design.clearn_half, 0.127);
    for (const double field : {design.ecc, design.radouter, design.thick, design.radinnroot,
                               design.shaftdiameter, design.maxdiameter, design.axial_clear,
                               design.radial_clear, design.fillet, design.minmaterial}) {
        EXPECT_EQ(field, 12.7);
    }
    EXPECT_EQ(design.numlobes, 7);
    EXPECT_EQ(design.coarseness, 1);
}

TEST(reading, fails_for_a_resolution_that_rounds_to_0_or_does_not_fit) {
    design_params design;
    rotor_profiles rotors;
    entries boxes = sample_entries();
    boxes.coarseness = "0.5";
    EXPECT_FAILURE(read_entries(boxes, length_unit_of(MILLIMETRES), design, rotors),
                   failure::division_by_zero);
    boxes.coarseness = "32768";
    EXPECT_FAILURE(read_entries(boxes, length_unit_of(MILLIMETRES), design, rotors),
                   failure::overflow);
}

TEST(shaft_check, counts_the_minimum_material_once_on_the_diameter) {
    design_params design;
    design.radinnroot = 10.0;
    design.shaftdiameter = 18.0;
    design.minmaterial = 2.0;  // 2 * 10 = 18 + 2, although only 1 mm stands on each side
    EXPECT_FALSE(shaft_material_too_thin(design));
    design.minmaterial = 2.0625;
    EXPECT_TRUE(shaft_material_too_thin(design));
}

}  // namespace kvt
