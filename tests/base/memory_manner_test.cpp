// Tests of how memory is got: blocks of all sizes are there, and large ones are zero when they are
// asked for so, again and again.
#include "base/memory_manner.hpp"

#include "base/zeroed_array.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(memory_manner, gives_arrays_that_are_zero_after_others_were_full) {
    take_large_blocks_from_system();
    for (int round = 0; round < 20; ++round) {
        zeroed_array large(72001);
        large[7] = 0.0;
        EXPECT_TRUE(std::ranges::all_of(large, [](double value) { return value == 0.0; }));
        std::ranges::fill(large, 1.0);
    }
}

}  // namespace
}  // namespace kvt
