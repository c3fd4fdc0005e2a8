// Tests of single-precision coordinates.
#include "views/twips.hpp"

#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(twips, are_rounded_to_single_precision) {
    EXPECT_EQ(single(0.1), 0.1F);
    EXPECT_EQ(single(-1500.5), -1500.5F);
}

TEST(twips, that_single_precision_cannot_hold_fail) {
    EXPECT_FAILURE(single(1e39), failure::overflow);
    EXPECT_FAILURE(single(std::nan("")), failure::overflow);
}

}  // namespace
}  // namespace kvt
