// Clear Design.
#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"

namespace kvt {
namespace {

using clear_design_test = project_test;

TEST_F(clear_design_test, sets_the_boxes_to_their_defaults) {
    for (const entry_field& field : entry_fields()) {
        kavetta.entries.*field.member = field.kind == entry_kind::check ? "1" : "9";
    }
    kavetta.app_state.drawing_units = INCHES;
    kavetta.enabling.mnudxf = kavetta.enabling.mnustep = kavetta.enabling.mnumodel = true;
    person.answers = {answer::no};
    clear_design(kavetta, person);

    entries expected;
    expected.fillet = "";
    expected.Face_area_value = expected.OD_area_value = expected.rotated_angle = "9";
    for (const entry_field& field : entry_fields()) {
        if (field.form == "select_graphs") {
            expected.*field.member = "1";
        }
        EXPECT_EQ(kavetta.entries.*field.member, expected.*field.member) << field.name;
    }
    EXPECT_EQ(kavetta.app_state.drawing_units, MILLIMETRES);
    EXPECT_EQ(kavetta.labels.capacity, "0.0");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021");
    EXPECT_FALSE(kavetta.enabling.mnudxf || kavetta.enabling.mnustep);
    EXPECT_TRUE(kavetta.enabling.mnumodel) << "the other menus stay";
    EXPECT_FALSE(kavetta.enabling.groove_length);
}

TEST_F(clear_design_test, keeps_fluid_and_material_on_yes_but_never_the_ranges) {
    kavetta.entries.fluid_density = "860";
    kavetta.entries.friction = "0.08";
    kavetta.entries.UTS_value = "520";
    kavetta.entries.speed_lo = kavetta.entries.speed_hi = "600";
    kavetta.entries.pressure_lo = kavetta.entries.pressure_hi = "3";
    person.answers = {answer::yes};
    clear_design(kavetta, person);
    EXPECT_EQ(kavetta.entries.fluid_density, "860");
    EXPECT_EQ(kavetta.entries.friction, "0.08");
    EXPECT_EQ(kavetta.entries.UTS_value, "520");
    EXPECT_EQ(kavetta.entries.speed_lo + kavetta.entries.speed_hi, "");
    EXPECT_EQ(kavetta.entries.pressure_lo + kavetta.entries.pressure_hi, "");
    EXPECT_EQ(person.questions,
              std::vector<std::string>{
                  "Keep existing Fluid Property and Gerotor Material Property values?"});
}

TEST_F(clear_design_test, asks_in_german) {
    kavetta.app_state.language = GERMAN;
    person.answers = {answer::yes};
    clear_design(kavetta, person);
    EXPECT_EQ(
        person.questions.at(0),
        "Behalten Sie, Flüssiges Eigentum zu existieren, und Gerotor Material Eigentum Werte? ");
}

TEST_F(clear_design_test, asks_nothing_after_new_at_the_start_prompt) {
    kavetta.entries.fluid_density = "860";
    kavetta.app_state.new_pressed = true;
    clear_design(kavetta, person);
    EXPECT_TRUE(person.questions.empty());
    EXPECT_EQ(kavetta.entries.fluid_density, "");
    EXPECT_FALSE(kavetta.app_state.new_pressed);
}

}  // namespace
}  // namespace kvt
