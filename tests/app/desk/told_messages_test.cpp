// Which texts have stood in a box since the last change of an entry.
#include "app/desk/told_messages.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

struct told_messages_test : testing::Test {
    told_messages told;
    entries boxes;

    /// One command that tells a text; true when the text stood in a box before.
    bool tell(const char* text) {
        const bool stood = told.stood_already(text);
        end();
        return stood;
    }
    void end() { told.command_ended(boxes, MILLIMETRES); }
};

TEST_F(told_messages_test, stand_from_the_second_command_on) {
    EXPECT_FALSE(tell("root 24.8"));
    EXPECT_TRUE(tell("root 24.8"));
    EXPECT_TRUE(tell("root 24.8"));
    EXPECT_FALSE(tell("root 24.9"));
}

TEST_F(told_messages_test, stand_twice_within_one_command) {
    EXPECT_FALSE(told.stood_already("Error with the Start Angle Inner Radius"));
    EXPECT_FALSE(told.stood_already("Error with the Start Angle Inner Radius"))
        << "once for each port, whose entry was emptied in between";
}

TEST_F(told_messages_test, stand_anew_after_an_edit_also_of_the_same_text) {
    tell("root 24.8");
    told.entry_edited();
    EXPECT_FALSE(tell("root 24.8"));
}

TEST_F(told_messages_test, keep_the_texts_of_the_command_that_changed_an_entry_itself) {
    boxes.outer_root = "24.8";
    EXPECT_FALSE(tell("root 24.8"));
    EXPECT_TRUE(tell("root 24.8"));
}

TEST_F(told_messages_test, go_when_a_later_command_changes_an_entry) {
    tell("root 24.8");
    boxes.ecc = "3";
    end();  // Open
    EXPECT_FALSE(tell("root 24.8"));
}

TEST_F(told_messages_test, go_when_the_unit_of_the_entries_changes) {
    tell("root 24.8");
    told.command_ended(boxes, INCHES);
    EXPECT_FALSE(told.stood_already("root 24.8"));
}

}  // namespace
}  // namespace kvt
