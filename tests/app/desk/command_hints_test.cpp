// Tests of the hints of a command: they are those of the last one, and scrap comes as one box.
#include "app/desk/command_hints.hpp"

#include "app/desk/run_command.hpp"
#include "app/program.hpp"
#include "app/stages/performance_hint.hpp"
#include "base/checked_math.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class command_hints_test : public testing::Test {
  protected:
    program kavetta;
    scripted_user person;
    performance_hint_memory known;
};

TEST_F(command_hints_test, forgets_the_hints_of_the_command_before) {
    add_hint(kavetta.hints, "an old one");
    EXPECT_FALSE(run_with_hints(kavetta, person, [&] {
        add_hint(kavetta.hints, "a new one");
        return false;
    }));
    EXPECT_EQ(hints_on_display(kavetta, known), std::vector<hint>{{"a new one"}});
    EXPECT_TRUE(run_with_hints(kavetta, person, [] { return true; }));
    EXPECT_TRUE(hints_on_display(kavetta, known).empty());
    EXPECT_TRUE(person.messages.empty()) << "a line is no box";
}

TEST_F(command_hints_test, tells_scrap_in_one_box_behind_the_command) {
    run_with_hints(kavetta, person, [&] {
        add_hint(kavetta.hints, "arcs", hint_weight::scraps_part);
        add_hint(kavetta.hints, "a line");
        add_hint(kavetta.hints, "gouges", hint_weight::scraps_part);
        person.show_message("told");
        return false;
    });
    EXPECT_EQ(person.messages, (std::vector<std::string>{"told", "arcs\rgouges"}));
}

TEST_F(command_hints_test, stand_in_one_line_with_their_number) {
    EXPECT_EQ(hint_summary({}, ENGLISH), "");
    EXPECT_EQ(hint_summary({{"arcs"}}, ENGLISH), "Hint: arcs");
    EXPECT_EQ(hint_summary({{"arcs"}, {"gouges"}, {"groove"}}, GERMAN), "Hinweis: arcs (+2)");
}

TEST_F(command_hints_test, stand_in_the_message_of_a_failure) {
    kavetta.folder = "/nowhere";
    run_command(kavetta, person, [&] {
        add_hint(kavetta.hints, "what to change");
        return checked_divide(1.0, 0.0) > 0.0;
    });
    EXPECT_EQ(person.messages, std::vector<std::string>{
                                   "Run-time error 11: Division by zero. Kavetta ends now. Your "
                                   "entries could not be saved.\rHint: what to change"});
}

}  // namespace
}  // namespace kvt
