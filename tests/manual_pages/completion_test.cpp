// Tests of the parts of which the completions are made. What shells do with them: shells_test.py.
#include "manual_pages/completion.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(shell_quoted, keeps_every_character) {
    EXPECT_EQ(shell_quoted("Cu In/Rev"), "'Cu In/Rev'");
    EXPECT_EQ(shell_quoted("Young's $x"), "'Young'\\''s $x'");
}

TEST(short_help, is_the_first_sentence) {
    EXPECT_EQ(short_help("Width of the groove, in mm. Not 0."), "Width of the groove, in mm");
    EXPECT_EQ(short_help("Files to write, separated by commas:\ninner, outer"),
              "Files to write, separated by commas");
    EXPECT_EQ(short_help("none, its\ncalls are written down"), "none, its calls are written down");
    EXPECT_EQ(short_help("oil has 0.5 of it"), "oil has 0.5 of it");
}

TEST(pattern_of_ending, takes_small_and_capital_letters) {
    EXPECT_EQ(pattern_of_ending("KVT"), "*.[kK][vV][tT]");
}

TEST(entries_with_states, stand_together_where_the_states_are_the_same) {
    program_description kvt;
    kvt.entries = {{"", "a", "", {"0", "1"}},
                   {"", "b", "", {}},
                   {"", "c", "", {"1"}},
                   {"", "d", "", {"0", "1"}}};
    const std::vector<entries_of_states> groups = entries_with_states(kvt);
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].names, (std::vector<std::string>{"a", "d"}));
    EXPECT_EQ(groups[1].names, std::vector<std::string>{"c"});
}

}  // namespace
}  // namespace kvt
