// Tests of what the steps are called, in both languages.
#include "app/history/step_text.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "core/text_table.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class step_text_test : public testing::Test {
  protected:
    step_text_test() {
        kavetta.entries.ecc = "2.6";
        history.begin(edited_state_of(kavetta, nullptr));
    }
    std::string last_step(const text_row* command = nullptr) {
        history.note_command(edited_state_of(kavetta, &history.present()), command);
        return step_text(kavetta, history, history.size() - 1);
    }

    program kavetta;
    scripted_user person;
    edit_history history;
};

TEST_F(step_text_test, tells_the_entry_with_both_texts) {
    kavetta.entries.ecc = "2.8";
    EXPECT_EQ(last_step(), "Eccentricity 2.6 → 2.8");
    kavetta.entries.outer_root = "30";
    EXPECT_EQ(last_step(), "Outer Rotor Root Radius (empty) → 30");
    EXPECT_EQ(step_text(kavetta, history, 0), "Start");
}

TEST_F(step_text_test, tells_whether_a_box_was_ticked) {
    kavetta.entries.shadow_ports = "1";
    EXPECT_EQ(last_step(), "Shadow Ports on");
    kavetta.entries.shadow_ports = "0";
    EXPECT_EQ(last_step(), "Shadow Ports off");
}

TEST_F(step_text_test, counts_the_others_of_several_entries) {
    kavetta.entries.ecc = "3";
    kavetta.entries.thick = "9";
    kavetta.entries.speed_lo = "100";
    EXPECT_EQ(last_step(), "Eccentricity 2.6 → 3 and 2 more");
}

TEST_F(step_text_test, is_the_caption_of_a_button_that_changes_many) {
    kavetta.entries.ecc = "0";
    EXPECT_EQ(last_step(find_caption("Form1", "cleardesign")), "Clear Design");
}

TEST_F(step_text_test, tells_units_language_assist_and_project) {
    set_unit_labels(kavetta, length_unit_of(INCHES));
    EXPECT_EQ(last_step(), "Units mm → inches");
    select_capacity_unit(kavetta, 2);
    const std::string unit = last_step();
    EXPECT_TRUE(unit.starts_with("Units Lit/Min/1000rpm → ")) << unit;
    EXPECT_EQ(unit, "Units Lit/Min/1000rpm → " + kavetta.labels.unittype);
    kavetta.app_state.assist_on = true;
    EXPECT_EQ(last_step(), "Assist ON");
    kavetta.app_state.project_name = "engine_oil";
    EXPECT_EQ(last_step(), "Project 'engine_oil'");
    choose_language(kavetta, person, GERMAN);
    EXPECT_EQ(last_step(), "Sprache");
}

TEST_F(step_text_test, speaks_the_language_in_force) {
    choose_language(kavetta, person, GERMAN);
    last_step();
    kavetta.entries.ecc = "2.8";
    EXPECT_EQ(last_step(), "Exzentrizität 2.6 → 2.8");
    kavetta.entries.shadow_ports = "1";
    EXPECT_EQ(last_step(), "Schatten Portiert ein");
}

}  // namespace
}  // namespace kvt
