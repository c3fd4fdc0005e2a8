// Tests of the steps that can be undone: what is one step, what belongs together, what goes.
#include "app/history/edit_history.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

namespace kvt {
namespace {

class edit_history_test : public testing::Test {
  protected:
    edit_history_test() { history.begin(edited_state_of(kavetta, nullptr)); }

    edited_state now() const { return edited_state_of(kavetta, &history.present()); }
    void type(std::string entries::*box, const std::string& text) {
        kavetta.entries.*box = text;
        history.note_typing(now());
    }
    void command(const text_row* caption = nullptr) { history.note_command(now(), caption); }

    program kavetta;
    edit_history history;
};

TEST_F(edit_history_test, edits_of_one_box_are_one_step) {
    type(&entries::ecc, "2");
    type(&entries::ecc, "2.");
    type(&entries::ecc, "2.6");
    EXPECT_EQ(history.size(), 2U);
    type(&entries::thick, "20");
    EXPECT_EQ(history.size(), 3U);
    EXPECT_EQ(history.step(1).state.boxes->ecc, "2.6");
    EXPECT_EQ(history.step(1).state.boxes->thick, "1");
    EXPECT_EQ(history.present().boxes->thick, "20");
}

TEST_F(edit_history_test, a_box_that_was_left_begins_another_step) {
    type(&entries::ecc, "2");
    history.note_left_entry(now());
    type(&entries::ecc, "25");
    EXPECT_EQ(history.size(), 3U);
}

TEST_F(edit_history_test, what_the_handler_of_the_box_does_belongs_to_the_typing) {
    type(&entries::numlobes, "2.7");
    kavetta.entries.numlobes = "3";
    kavetta.entries.thick = "7";
    history.note_left_entry(now());
    EXPECT_EQ(history.size(), 2U);
    EXPECT_EQ(history.present().boxes->thick, "7");
}

TEST_F(edit_history_test, a_text_that_comes_back_to_what_it_was_is_no_step) {
    type(&entries::ecc, "2");
    type(&entries::ecc, "0");
    EXPECT_EQ(history.size(), 1U);
    EXPECT_FALSE(history.can_undo());
}

TEST_F(edit_history_test, a_command_is_a_step_when_the_user_sees_a_difference) {
    command();
    EXPECT_EQ(history.size(), 1U);
    kavetta.entries.rotated_angle = "12";
    kavetta.labels.capacity = "7.6";
    command();
    EXPECT_EQ(history.size(), 1U) << "results and the angle of the view are none";
    kavetta.app_state.drawing_units = INCHES;
    const text_row* caption = find_caption("Form1", "cleardesign");
    command(caption);
    EXPECT_EQ(history.size(), 2U);
    EXPECT_EQ(history.step(1).command, caption);
}

TEST_F(edit_history_test, typing_after_undoing_drops_what_could_be_done_again) {
    type(&entries::ecc, "2");
    type(&entries::thick, "20");
    history.move_to(1);
    EXPECT_TRUE(history.can_redo());
    kavetta.entries.thick = "1";
    type(&entries::ecc, "3");
    EXPECT_FALSE(history.can_redo());
    EXPECT_EQ(history.size(), 3U) << "a step that was gone back to is not typed into any more";
    EXPECT_EQ(history.step(1).state.boxes->ecc, "2");
}

TEST_F(edit_history_test, keeps_a_thousand_steps) {
    for (int i = 1; i <= 1500; ++i) {
        kavetta.entries.ecc = std::to_string(i);
        command();
    }
    EXPECT_EQ(history.size(), edit_history::MAX_STEPS + 1);
    EXPECT_EQ(history.present().boxes->ecc, "1500");
    EXPECT_EQ(history.step(0).state.boxes->ecc, "500");
}

TEST_F(edit_history_test, a_thousand_steps_stay_below_20_megabytes) {
    const std::string long_text(40, '7');
    for (const entry_field& field : entry_fields()) {
        kavetta.entries.*field.member = long_text;
    }
    for (int i = 1; i <= 1000; ++i) {
        kavetta.entries.ecc = std::to_string(i);
        command();
    }
    std::set<const void*> shared;
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < history.size(); ++i) {
        const edited_state& state = history.step(i).state;
        bytes += sizeof(edit_step);
        if (shared.insert(state.boxes.get()).second) {
            bytes += sizeof(entries);
            for (const entry_field& field : entry_fields()) {
                bytes += (*state.boxes.*field.member).capacity() + 1;
            }
        }
        bytes += shared.insert(state.project.get()).second ? sizeof(edited_project) : 0;
    }
    EXPECT_LT(bytes, 20U * 1000U * 1000U);
    EXPECT_EQ(shared.size(), 1001U + 1U) << "one project for all";
}

TEST_F(edit_history_test, has_no_step_behind_the_last) {
    EXPECT_THROW(history.move_to(1), std::out_of_range);
    EXPECT_EQ(history.position(), 0U);
}

}  // namespace
}  // namespace kvt
