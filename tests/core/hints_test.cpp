// Tests of the hints: each stands once, and in the language in force.
#include "core/hints.hpp"

#include "core/app_state.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(hints, keep_their_order_and_stand_once) {
    std::vector<hint> hints;
    add_hint(hints, "second thoughts");
    add_hint(hints, "another");
    add_hint(hints, "second thoughts");
    EXPECT_EQ(hints, (std::vector<hint>{{"second thoughts"}, {"another"}}));
}

TEST(hints, keep_the_heavier_weight) {
    std::vector<hint> hints;
    add_hint(hints, "gouges", hint_weight::scraps_part);
    add_hint(hints, "gouges");
    EXPECT_EQ(hints.front().weight, hint_weight::scraps_part);
    add_hint(hints, "arcs");
    add_hint(hints, "arcs", hint_weight::scraps_part);
    EXPECT_EQ(hints.back().weight, hint_weight::scraps_part);
    EXPECT_EQ(hints.size(), 2U);
}

TEST(hints, are_called_hint_in_either_language) {
    EXPECT_EQ(hint_line({"arcs"}, ENGLISH), "Hint: arcs");
    EXPECT_EQ(hint_line({"Bögen"}, GERMAN), "Hinweis: Bögen");
}

}  // namespace
}  // namespace kvt
