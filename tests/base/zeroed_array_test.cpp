// Tests of the array that takes memory only once it is written to.
#include "base/zeroed_array.hpp"

#include "base/checked_math.hpp"
#include "support/expect_failure.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>
#include <utility>

namespace kvt {
namespace {

TEST(zeroed_array, is_0_from_its_first_to_its_last_element_and_fails_beyond) {
    const zeroed_array numbers(36001);
    EXPECT_EQ(numbers.size(), 36001U);
    EXPECT_EQ(checked_at(numbers, 0), 0.0);
    EXPECT_EQ(checked_at(numbers, 36000), 0.0);
    EXPECT_FAILURE(checked_at(numbers, 36001), failure::subscript_out_of_range);
    EXPECT_FAILURE(checked_at(numbers, -1), failure::subscript_out_of_range);
}

TEST(zeroed_array, takes_no_memory_before_it_is_written_to) {
    const zeroed_array first(36001);
    zeroed_array second(72001);
    EXPECT_EQ(first.data(), std::as_const(second).data()) << "both show the same zeros";
    second[7] = 1.5;
    EXPECT_NE(first.data(), std::as_const(second).data());
    EXPECT_EQ(std::as_const(second)[7], 1.5);
    EXPECT_EQ(first[7], 0.0);
}

TEST(zeroed_array, of_a_copy_that_nobody_wrote_to_takes_none_either) {
    const zeroed_array numbers(36001);
    const zeroed_array copy = numbers;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.data(), numbers.data());
    EXPECT_EQ(copy.size(), 36001U);
}

TEST(zeroed_array, copies_every_number_and_stays_apart_from_its_copy) {
    zeroed_array numbers(36001);
    numbers[0] = 1.0;
    numbers[5000] = -0.0;
    numbers[36000] = 3.0;
    zeroed_array copy = numbers;
    EXPECT_EQ(copy, numbers);
    EXPECT_TRUE(std::signbit(copy[5000]));
    copy[100] = 7.0;
    EXPECT_EQ(numbers[100], 0.0);
    EXPECT_FALSE(copy == numbers);
    numbers = copy;
    EXPECT_EQ(numbers[100], 7.0);
}

TEST(zeroed_array, shares_its_memory_with_a_copy_until_one_is_written_to) {
    zeroed_array numbers(36001);
    numbers[5] = 1.0;
    const double* const memory = numbers.data();
    zeroed_array copy = numbers;
    EXPECT_EQ(std::as_const(copy).data(), memory);
    numbers[6] = 2.0;
    EXPECT_NE(std::as_const(numbers).data(), memory);
    EXPECT_EQ(std::as_const(numbers)[5], 1.0);
    EXPECT_EQ(std::as_const(copy)[6], 0.0);
    copy[7] = 3.0;
    EXPECT_EQ(std::as_const(copy).data(), memory) << "it is the only one that has it";
}

TEST(zeroed_array, parts_from_copies_in_other_threads) {
    zeroed_array numbers(3601);
    numbers[0] = 1.0;
    for (int round = 0; round < 200; ++round) {
        std::jthread reader([copy = numbers, round] {
            ASSERT_EQ(copy[0], round + 1.0);
            ASSERT_EQ(copy[3600], 0.0);
        });
        numbers[0] += 1.0;
    }
    EXPECT_EQ(numbers[0], 201.0);
}

TEST(zeroed_array, assigns_itself) {
    zeroed_array numbers(3);
    numbers[1] = 4.0;
    const zeroed_array& same = numbers;
    numbers = same;
    EXPECT_EQ(numbers[1], 4.0);
}

TEST(zeroed_array, moves_its_numbers_and_leaves_nothing) {
    zeroed_array numbers(10);
    numbers[3] = 2.0;
    const zeroed_array moved = std::move(numbers);
    EXPECT_EQ(moved[3], 2.0);
    EXPECT_EQ(moved.size(), 10U);
}

TEST(zeroed_array, assigns_a_new_size_and_one_value) {
    zeroed_array numbers(3);
    numbers[2] = 5.0;
    numbers.assign(4, 0.0);
    EXPECT_EQ(numbers.size(), 4U);
    EXPECT_EQ(numbers[2], 0.0);
    numbers.assign(2, 1.25);
    EXPECT_EQ(numbers.size(), 2U);
    EXPECT_EQ(numbers[1], 1.25);
}

TEST(zeroed_array, is_0_again_in_the_memory_of_one_that_was_written_to) {
    for (const std::size_t written : {0U, 1U, 4999U, 36000U}) {
        for (int round = 0; round < 3; ++round) {
            zeroed_array gone(36001);
            gone[written] = 7.0;
            gone[written / 2] = 8.0;
        }
        zeroed_array next(36001);
        next[36000] = 0.0;
        EXPECT_TRUE(std::ranges::all_of(std::as_const(next), [](double value) {
            return value == 0.0;
        })) << written;
    }
}

TEST(zeroed_array, is_0_in_the_memory_of_one_that_was_filled_through_a_pointer) {
    for (int round = 0; round < 3; ++round) {
        zeroed_array gone(72001);
        std::ranges::fill(gone, 1.0);
        zeroed_array other(72001);
        *(other.end() - 1) = 2.0;
    }
    for (int round = 0; round < 2; ++round) {
        zeroed_array next(72001);
        next[0] = 0.0;
        EXPECT_EQ(std::ranges::count(std::as_const(next), 0.0), 72001);
    }
}

TEST(zeroed_array, hands_a_copy_the_numbers_that_were_written_and_0) {
    {
        zeroed_array gone(3601);
        std::ranges::fill(gone, 9.0);
    }
    zeroed_array numbers(3601);
    numbers[10] = 1.0;
    zeroed_array copy = numbers;
    copy[20] = 2.0;
    EXPECT_EQ(std::ranges::count(std::as_const(copy), 0.0), 3599);
    EXPECT_EQ(std::ranges::count(std::as_const(numbers), 0.0), 3600);
}

TEST(zeroed_array, larger_than_any_record_has_zeros_of_its_own) {
    const zeroed_array numbers(1000000);
    EXPECT_EQ(numbers[999999], 0.0);
    EXPECT_NE(numbers.data(), zeroed_array(5).data());
}

TEST(zeroed_array, of_nothing_is_empty) {
    zeroed_array none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.begin(), none.end());
    EXPECT_EQ(none, zeroed_array(0));
    EXPECT_FALSE(none == zeroed_array(1));
}

}  // namespace
}  // namespace kvt
