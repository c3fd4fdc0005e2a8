// Texts without what stands around them.
#include "base/trimmed.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(trimmed, leaves_what_stands_between_the_blanks) {
    EXPECT_EQ(trimmed(" \t2 3\t "), "2 3");
    EXPECT_EQ(trimmed("2"), "2");
    EXPECT_EQ(trimmed("2\r"), "2\r") << "no blank here";
    EXPECT_EQ(trimmed(" 2\r\n", " \t\r\n"), "2");
    EXPECT_EQ(trimmed(" \t"), "");
    EXPECT_EQ(trimmed(""), "");
}

}  // namespace
}  // namespace kvt
