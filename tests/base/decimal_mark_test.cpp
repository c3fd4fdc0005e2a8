// The decimal mark of other programs.
#include "base/decimal_mark.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(with_decimal_mark, replaces_the_point_and_nothing_else) {
    EXPECT_EQ(with_decimal_mark("-1.5E-05", ','), "-1,5E-05");
    EXPECT_EQ(with_decimal_mark("1600", ','), "1600");
    EXPECT_EQ(with_decimal_mark("0.25", '.'), "0.25");
}

}  // namespace
}  // namespace kvt
