// Names that are the same in any case of letters.
#include "base/letter_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(lower_case, changes_the_letters_of_ascii_alone) {
    EXPECT_EQ(lower_case('A'), 'a');
    EXPECT_EQ(lower_case('Z'), 'z');
    for (const char same : {'a', '@', '[', '0', '\xC4'}) {
        EXPECT_EQ(lower_case(same), same);
    }
}

TEST(is_same_ignoring_case, compares_whole_names) {
    EXPECT_TRUE(is_same_ignoring_case(".KVT", ".kvt"));
    EXPECT_TRUE(is_same_ignoring_case("", ""));
    EXPECT_FALSE(is_same_ignoring_case(".KVT", ".kv"));
    EXPECT_FALSE(is_same_ignoring_case("Ä", "ä"));
}

}  // namespace
}  // namespace kvt
