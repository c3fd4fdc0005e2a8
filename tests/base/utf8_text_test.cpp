// The characters of a UTF-8 text.
#include "base/utf8_text.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::string shortened(std::string text) {
    drop_last_character(text);
    return text;
}

TEST(character_count, counts_letters_and_not_their_bytes) {
    EXPECT_EQ(character_count(""), 0U);
    EXPECT_EQ(character_count("pump"), 4U);
    EXPECT_EQ(character_count("Äußerer °"), 9U);
    EXPECT_EQ(character_count("Größe 5 µm"), 10U);
    EXPECT_EQ(character_count("Насос…"), 6U);
}

TEST(drop_last_character, takes_all_bytes_of_one_character) {
    EXPECT_EQ(shortened("pump"), "pum");
    EXPECT_EQ(shortened("5 µ"), "5 ");
    EXPECT_EQ(shortened("5…"), "5");
    EXPECT_EQ(shortened("…"), "");
    EXPECT_EQ(shortened(""), "");
    EXPECT_EQ(shortened("\x80\x80"), "") << "bytes that continue nothing";
}

}  // namespace
}  // namespace kvt
