// Tests of what happens when the user leaves an entry.
#include "app/stages/entry_handlers.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "support/expect_failure.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

struct leaving : testing::Test {
    program kavetta;
    scripted_user person;

    std::string leave(const char* control, const char* typed) {
        person.messages.clear();
        std::string& text = kavetta.entries.*find_entry(control)->member;
        text = typed;
        leave_entry(kavetta, person, control);
        return text;
    }
};

const std::vector<std::string> LOBE_MESSAGE = {
    "The number of Outer Lobes must be an integer, of minimum value = 3"};
const std::vector<std::string> ZERO_MESSAGE = {"This value must be greater than zero!"};

}  // namespace

TEST_F(leaving, numlobes_writes_back_the_integer) {
    EXPECT_EQ(leave("numlobes", "7"), "7");
    EXPECT_EQ(leave("numlobes", "4.5"), "4");
    EXPECT_EQ(leave("numlobes", " 8 "), "8");
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(kavetta.design_params.numlobes, 8);
}

TEST_F(leaving, numlobes_below_3_gives_one_message_and_3) {
    for (const char* typed : {"", "0", "-4", "abc", "2", "2.7", "1"}) {
        EXPECT_EQ(leave("numlobes", typed), "3") << typed;
        EXPECT_EQ(person.messages, LOBE_MESSAGE) << typed;
        EXPECT_EQ(kavetta.design_params.numlobes, 3) << typed;
    }
}

TEST_F(leaving, numlobes_fails_for_a_number_with_something_behind_it) {
    EXPECT_FAILURE(leave("numlobes", "7 lobes"), failure::type_mismatch);
    EXPECT_FAILURE(leave("numlobes", "3000000000"), failure::overflow);
}

TEST_F(leaving, maxdiameter_must_be_above_0) {
    for (const char* typed : {"", "0", "-1", "abc", ",5"}) {
        EXPECT_EQ(leave("maxdiameter", typed), "1") << typed;
        EXPECT_EQ(person.messages, ZERO_MESSAGE) << typed;
    }
    EXPECT_EQ(leave("maxdiameter", "52.5"), "52.5");
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(leaving, coarseness_becomes_1_silently) {
    for (const char* typed : {"", "0", "7", "11", "10.5", "1e3"}) {
        EXPECT_EQ(leave("coarseness", typed), "1") << typed;
    }
    for (const char* typed : {"1", "2", "3", "4", "5", "6", "8", "9", "10", "7.0", " 0", "-3"}) {
        EXPECT_EQ(leave("coarseness", typed), typed);
    }
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(leaving, speaks_german_for_language_2) {
    kavetta.app_state.language = GERMAN;
    leave("numlobes", "2");
    EXPECT_EQ(person.messages,
              std::vector<std::string>{std::string(message_text(message::lobe_number_minimum, 2))});
    EXPECT_NE(person.messages, LOBE_MESSAGE);
    leave("maxdiameter", "0");
    EXPECT_EQ(person.messages, std::vector<std::string>{"Dieser Wert muss größer als Null sein! "});
}

TEST_F(leaving, other_entries_do_nothing) {
    EXPECT_EQ(leave("ecc", "abc"), "abc");
    EXPECT_EQ(leave("thick", ""), "");
    EXPECT_TRUE(person.log.empty());
}

}  // namespace kvt
