#include "base/windows/wide_text.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(wide_text, is_utf_16_and_comes_back_as_the_same_text) {
    const std::string text = "Größe \xF0\x9D\x84\x9E";
    EXPECT_EQ(wide_of_utf8(text), L"Gr\u00f6\u00dfe \xd834\xdd1e");
    EXPECT_EQ(utf8_of_wide(wide_of_utf8(text)), text);
    EXPECT_EQ(wide_of_utf8(""), L"");
}

}  // namespace
}  // namespace kvt
