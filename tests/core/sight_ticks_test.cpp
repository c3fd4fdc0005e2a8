// Tests of the ticks of the Design view's menu.
#include "core/sight_ticks.hpp"

#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

TEST(sight_ticks, are_all_in_the_table_with_entry_and_key_of_their_own) {
    std::set<std::string_view> entries, keys;
    sight_ticks all;
    for (const sight_tick_row& row : sight_tick_rows()) {
        entries.insert(row.entry);
        keys.insert(row.key);
        all.*row.tick = true;
    }
    EXPECT_EQ(entries.size(), sight_tick_rows().size());
    EXPECT_EQ(keys.size(), sight_tick_rows().size());
    EXPECT_EQ(all, (sight_ticks{true, true, true, true, true, true}));
}

TEST(sight_ticks, have_a_caption_each) {
    for (const sight_tick_row& row : sight_tick_rows()) {
        EXPECT_FALSE(form_text("viewpopupmenu", row.entry, GERMAN).empty()) << row.entry;
    }
}

TEST(sight_ticks, fill_the_rotors_and_nothing_else_at_first) {
    EXPECT_EQ(sight_ticks{}, (sight_ticks{true, false, false, false, false, false}));
}

}  // namespace
}  // namespace kvt
