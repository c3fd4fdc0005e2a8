// Tests of the names that an unknown control may have meant.
#include "app/stages/near_names.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using names = std::vector<std::string_view>;

TEST(edit_distance, counts_letters_to_insert_remove_and_replace) {
    EXPECT_EQ(edit_distance("", "ecc"), 3U);
    EXPECT_EQ(edit_distance("thick", "thick"), 0U);
    EXPECT_EQ(edit_distance("thik", "thick"), 1U);
    EXPECT_EQ(edit_distance("rodouter", "radouter"), 1U);
    EXPECT_EQ(edit_distance("fillets", "fillet"), 1U);
    EXPECT_EQ(edit_distance("kitten", "sitting"), 3U);
}

TEST(edit_distance, ignores_capitals) {
    EXPECT_EQ(edit_distance("outlet_inner_radius", "Outlet_inner_radius"), 0U);
}

TEST(near_names, gives_the_nearest_first) {
    EXPECT_EQ(near_names("speed_l", {"speed_hi", "speed_lo", "thick"}),
              (names{"speed_lo", "speed_hi"}));
}

TEST(near_names, finds_a_name_by_its_beginning) {
    EXPECT_EQ(near_names("coarse", {"coarseness", "clearn"}), names{"coarseness"});
}

TEST(near_names, gives_three_names_at_most) {
    EXPECT_EQ(near_names("ab", {"ab1", "ab2", "ab3", "ab4"}), (names{"ab1", "ab2", "ab3"}));
}

TEST(near_names, gives_nothing_for_a_name_unlike_all_others) {
    EXPECT_EQ(near_names("temperature", {"ecc", "thick", "fillet"}), names{});
}

}  // namespace
}  // namespace kvt
