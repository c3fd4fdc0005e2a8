// Tests of durations in words.
#include "app/study/duration_text.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(duration_text, has_the_two_largest_units) {
    EXPECT_EQ(duration_text(0.0), "0 s");
    EXPECT_EQ(duration_text(11.6), "12 s");
    EXPECT_EQ(duration_text(59.4), "59 s");
    EXPECT_EQ(duration_text(59.6), "1 min 0 s");
    EXPECT_EQ(duration_text(200.0), "3 min 20 s");
    EXPECT_EQ(duration_text(3599.6), "1 h 0 min");
    EXPECT_EQ(duration_text(7530.0), "2 h 5 min");
    EXPECT_EQ(duration_text(360000.0), "100 h 0 min");
}

}  // namespace
}  // namespace kvt
