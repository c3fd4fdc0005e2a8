// The fixed number format of coordinate files.
#include "base/fixed_number.hpp"

#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace kvt {

namespace {

struct fixed_case {
    double value;
    int decimals;
    const char* text;
};

constexpr fixed_case CASES[] = {
    {0.0, 4, "0.0000"},
    {-0.0, 4, "0.0000"},
    {0.5, 2, "0.50"},
    {12.0, 3, "12.000"},
    {-12.3456789, 4, "-12.3457"},
    {123456.789, 2, "123456.79"},
    {0.00004, 4, "0.0000"},
    {-0.00004, 4, "0.0000"},   // zeros only carry no sign
    {0.00005, 4, "0.0001"},    // a tie goes away from zero
    {-0.00005, 4, "-0.0001"},  // on either side
    {0.125, 2, "0.13"},
    {0.005, 2, "0.01"},
    {2.675, 2, "2.68"},               // the double lies below 2.675, its 15-digit text is 2.675
    {1.0049999999999999, 2, "1.01"},  // the 15-digit text is 1.005
    {9.9996, 3, "10.000"},
    {999.996, 2, "1000.00"},
    {0.96, 1, "1.0"},
    {0.4, 0, "0"},
    {0.5, 0, "1"},
    {99.5, 0, "100"},
    {1e15, 2, "1000000000000000.00"},
    {123456789012345678.0, 1, "123456789012346000.0"},
    {1e-300, 6, "0.000000"},
    {0.0123456, 6, "0.012346"},
};

}  // namespace

TEST(fixed_number, writes_the_decimals_that_are_asked_for) {
    for (const fixed_case& c : CASES) {
        EXPECT_EQ(fixed_number(c.value, c.decimals), c.text) << number_text(c.value);
    }
}

TEST(fixed_number, refuses_what_is_no_number) {
    EXPECT_FAILURE(fixed_number(std::numeric_limits<double>::infinity(), 2), failure::overflow);
    EXPECT_FAILURE(fixed_number(std::numeric_limits<double>::quiet_NaN(), 2), failure::overflow);
}

TEST(fixed_number, is_nearest_for_random_numbers) {
    random_values random;
    for (int run = property_count(500); run > 0; --run) {
        const int decimals = random.whole(2, 6);
        const double value = random.real(-1000.0, 1000.0);
        const std::string text = fixed_number(value, decimals);
        const double unit = std::pow(10.0, -decimals);
        EXPECT_LE(std::abs(number_of_text(text) - value), 0.5 * unit + 1e-12) << text;
        EXPECT_EQ(text.size() - text.find('.') - 1, static_cast<std::size_t>(decimals)) << text;
    }
}

/// k in units of the last decimal, e.g. 1250 as "1.250".
std::string shown(std::int64_t k, int decimals) {
    std::string digits = std::to_string(k);
    digits.insert(0, std::max(decimals + 1 - static_cast<int>(digits.size()), 0), '0');
    return digits.insert(digits.size() - static_cast<std::size_t>(decimals), ".");
}

TEST(fixed_number, decides_near_a_half_by_the_15_digit_text) {
    random_values random;
    for (int run = property_count(20000); run > 0; --run) {
        const int decimals = random.whole(1, 6);
        const std::int64_t k = random.whole(0, random.whole(0, 2000000000));
        const double half = (static_cast<double>(k) + 0.5) / std::pow(10.0, decimals);
        double value = half;
        for (int steps = random.whole(-40, 40); steps != 0; steps += steps < 0 ? 1 : -1) {
            value = std::nextafter(value, steps < 0 ? 0.0 : 1e300);
        }
        const bool is_half = number_text(value) == number_text(half);
        ASSERT_EQ(fixed_number(value, decimals),
                  shown(is_half || value > half ? k + 1 : k, decimals))
            << number_text(value) << " with " << decimals;
    }
}

}  // namespace kvt
