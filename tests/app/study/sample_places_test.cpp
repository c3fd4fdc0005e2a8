// Tests of the samples' places: that each property for which they are chosen holds, and that a
// place is the same wherever it is asked for.
#include "app/study/sample_places.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

namespace kvt {
namespace {

TEST(number_shuffle, has_each_number_once) {
    for (const std::uint64_t count : {1U, 2U, 3U, 4U, 5U, 16U, 17U, 100U, 1000U}) {
        const number_shuffle shuffled(count, 42);
        std::set<std::uint64_t> seen;
        for (std::uint64_t i = 0; i < count; ++i) {
            seen.insert(shuffled(i));
        }
        EXPECT_EQ(seen.size(), count);
        EXPECT_EQ(*seen.rbegin(), count - 1);
    }
}

TEST(number_shuffle, has_another_order_for_another_key) {
    const number_shuffle one(1000, 1);
    const number_shuffle other(1000, 2);
    int same = 0;
    for (std::uint64_t i = 0; i < 1000; ++i) {
        same += one(i) == other(i) ? 1 : 0;
    }
    // Two orders by chance share one place on average; 20 has a chance of 1e-19.
    EXPECT_LT(same, 20);
}

TEST(number_shuffle, works_for_more_numbers_than_memory_holds) {
    const number_shuffle shuffled(std::uint64_t{1} << 53U, 7);
    EXPECT_LT(shuffled(123456789), std::uint64_t{1} << 53U);
    EXPECT_NE(shuffled(0), shuffled(1));
}

TEST(uniform_number, fills_the_interval_evenly) {
    double sum = 0.0;
    double squares = 0.0;
    constexpr int COUNT = 100000;
    for (int i = 0; i < COUNT; ++i) {
        const double u = uniform_number(5, static_cast<std::uint64_t>(i));
        ASSERT_GE(u, 0.0);
        ASSERT_LT(u, 1.0);
        sum += u;
        squares += u * u;
    }
    // Mean 1/2, square 1/3, each within four times its deviation of some 0.3 / sqrt(count).
    EXPECT_NEAR(sum / COUNT, 0.5, 0.004);
    EXPECT_NEAR(squares / COUNT, 1.0 / 3.0, 0.004);
}

TEST(latin_place, has_one_design_in_each_interval_of_each_dimension) {
    constexpr std::uint64_t COUNT = 137;
    for (std::size_t dimension = 0; dimension < 4; ++dimension) {
        std::set<double> intervals;
        for (std::uint64_t i = 0; i < COUNT; ++i) {
            const double place = latin_place(i, COUNT, 4, 9)[dimension];
            intervals.insert(std::floor(place * static_cast<double>(COUNT)));
        }
        EXPECT_EQ(intervals.size(), COUNT);
        EXPECT_EQ(*intervals.begin(), 0.0);
        EXPECT_EQ(*intervals.rbegin(), static_cast<double>(COUNT - 1));
    }
}

TEST(latin_place, puts_the_dimensions_together_by_chance) {
    constexpr std::uint64_t COUNT = 1000;
    double product = 0.0;
    for (std::uint64_t i = 0; i < COUNT; ++i) {
        const std::vector<double> place = latin_place(i, COUNT, 2, 1);
        product += (place[0] - 0.5) * (place[1] - 0.5);
    }
    // The correlation, 12 times the mean product, is 0 with a deviation of 1 / sqrt(count) = 0.03.
    EXPECT_NEAR(12.0 * product / static_cast<double>(COUNT), 0.0, 0.13);
}

TEST(latin_place, is_another_one_for_another_seed) {
    EXPECT_EQ(latin_place(3, 10, 2, 1), latin_place(3, 10, 2, 1));
    EXPECT_NE(latin_place(3, 10, 2, 1), latin_place(3, 10, 2, 2));
}

TEST(sobol_place, begins_with_the_known_points) {
    using place = std::vector<double>;
    EXPECT_EQ(sobol_place(0, 3, 0), (place{0.0, 0.0, 0.0}));
    EXPECT_EQ(sobol_place(1, 3, 0), (place{0.5, 0.5, 0.5}));
    EXPECT_EQ(sobol_place(2, 3, 0), (place{0.75, 0.25, 0.25}));
    EXPECT_EQ(sobol_place(3, 3, 0), (place{0.25, 0.75, 0.75}));
    EXPECT_EQ(sobol_place(4, 3, 0), (place{0.375, 0.375, 0.625}));
}

/// The points of a sequence in the plane of two dimensions, counted in boxes of 2^-a by 2^-b.
std::vector<int> counts_in_boxes(unsigned m, unsigned a, std::uint64_t seed, std::size_t second) {
    const unsigned b = m - a;
    std::vector<int> counts(std::size_t{1} << m);
    for (std::uint64_t i = 0; i < std::uint64_t{1} << m; ++i) {
        const std::vector<double> place = sobol_place(i, 5, seed);
        const auto column = static_cast<std::size_t>(std::ldexp(place[0], static_cast<int>(a)));
        const auto row = static_cast<std::size_t>(std::ldexp(place[second], static_cast<int>(b)));
        ++counts[(column << b) + row];
    }
    return counts;
}

TEST(sobol_place, fills_each_box_of_equal_area_once) {
    // The first two dimensions are a (0, m, 2)-net: 2^m points, one in each box of area 2^-m.
    for (const std::uint64_t seed : {0U, 1U, 77U}) {
        for (unsigned a = 0; a <= 8; ++a) {
            const std::vector<int> counts = counts_in_boxes(8, a, seed, 1);
            EXPECT_EQ(std::ranges::count(counts, 1), 256) << "seed " << seed << ", a " << a;
        }
    }
}

TEST(sobol_place, leaves_no_interval_of_a_dimension_empty) {
    for (std::size_t dimension = 1; dimension < 5; ++dimension) {
        const std::vector<int> counts = counts_in_boxes(7, 0, 3, dimension);
        EXPECT_EQ(std::ranges::count(counts, 1), 128);
    }
}

TEST(sobol_place, is_found_far_out) {
    const std::uint64_t far = std::uint64_t{1} << 40U;
    EXPECT_EQ(sobol_place(far, 2, 1), sobol_place(far, 2, 1));
    EXPECT_NE(sobol_place(far, 2, 1), sobol_place(far + 1, 2, 1));
}

}  // namespace
}  // namespace kvt
