// The 4-decimal fixed-point number: ties, text, range.
#include "base/fixed4.hpp"

#include "base/number_text.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kvt {

namespace {

struct rounding_case {
    double value;
    std::int64_t scaled;
    const char* text;
};

// 0.03125 and 0.09375 are exact in binary, so x * 10000 is the tie itself. The double next
// to 12.34565 lies a little beside the tie, but its product with 10000 rounds to 123456.5 exactly:
// a tie again, and the even neighbour is 123456.
constexpr rounding_case ROUNDINGS[] = {
    {0.0, 0, "0"},
    {-0.0, 0, "0"},
    {0.03125, 312, "0.0312"},
    {0.09375, 938, "0.0938"},
    {-0.03125, -312, "-0.0312"},
    {-0.09375, -938, "-0.0938"},
    {12.34565, 123456, "12.3456"},
    {12.34566, 123457, "12.3457"},
    {1.0, 10000, "1"},
    {-0.5, -5000, "-0.5"},
    {10.05, 100500, "10.05"},
    {1.005, 10050, "1.005"},
    {0.0001, 1, "0.0001"},
    {-0.00004, 0, "0"},
    {1234567.89, 12345678900, "1234567.89"},
    {9e14, 9000000000000000000, "900000000000000"},
};

TEST(fixed4, rounds_to_four_decimals_half_to_even) {
    for (const rounding_case& expected : ROUNDINGS) {
        EXPECT_EQ(fixed4::from(expected.value).scaled(), expected.scaled) << expected.text;
    }
}

TEST(fixed4, shows_up_to_four_decimals_without_trailing_zeros) {
    for (const rounding_case& expected : ROUNDINGS) {
        EXPECT_EQ(fixed4::from_scaled(expected.scaled).text(), expected.text);
    }
}

TEST(fixed4, shows_the_ends_of_its_range) {
    EXPECT_EQ(fixed4::from_scaled(std::numeric_limits<std::int64_t>::max()).text(),
              "922337203685477.5807");
    EXPECT_EQ(fixed4::from_scaled(std::numeric_limits<std::int64_t>::min()).text(),
              "-922337203685477.5808");
}

TEST(fixed4, has_the_value_of_a_quotient_by_10000) {
    EXPECT_EQ(fixed4::from_scaled(123456).value(), 12.3456);
    EXPECT_EQ(fixed4().value(), 0.0);
}

TEST(fixed4, overflows_outside_64_bits) {
    EXPECT_FAILURE(fixed4::from(9.3e14), failure::overflow);
    EXPECT_FAILURE(fixed4::from(-9.3e14), failure::overflow);
    EXPECT_FAILURE(fixed4::from(1e308), failure::overflow);
    EXPECT_FAILURE(fixed4::from(922337203685477.6), failure::overflow);
    EXPECT_FAILURE(fixed4::from(std::numeric_limits<double>::quiet_NaN()), failure::overflow);
}

TEST(fixed4, takes_the_lowest_64_bit_number) {
    EXPECT_EQ(fixed4::from(-922337203685477.5808).scaled(),
              std::numeric_limits<std::int64_t>::min());
}

TEST(fixed4, is_nearest_to_random_numbers_and_survives_its_own_text) {
    random_values random;
    for (int left = property_count(20000); left > 0; --left) {
        const double value = random.real(-10000.0, 10000.0);
        const fixed4 rounded = fixed4::from(value);
        // Half a ten-thousandth, and the rounding of a product near 1e8.
        EXPECT_LE(std::abs(rounded.value() - value), 0.00005 + 1e-12);
        EXPECT_EQ(fixed4::from(number_of_text(rounded.text())), rounded) << rounded.text();
    }
}

}  // namespace

}  // namespace kvt
