// Tests of the 15 significant digits of a double.
#include "base/fifteen_digits.hpp"

#include "support/property_runs.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace kvt {
namespace {

std::string shown(double magnitude) {
    const fifteen_digits parts = fifteen_digits_of(magnitude);
    return std::string(parts.digits.begin(), parts.digits.end()) + " e" +
           std::to_string(parts.exponent);
}

/// What the standard library rounds to.
std::string rounded(double magnitude) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, 14)
                         .ptr;
    const std::string text(buffer.data(), end);
    const std::size_t e = text.find('e');
    return text.substr(0, 1) + text.substr(2, e - 2) + " e" +
           std::to_string(std::stoi(text.substr(e + 1)));
}

TEST(fifteen_digits, are_those_of_the_number) {
    EXPECT_EQ(shown(0.0), "000000000000000 e0");
    EXPECT_EQ(shown(1.0), "100000000000000 e0");
    EXPECT_EQ(shown(25.4), "254000000000000 e1");
    EXPECT_EQ(shown(1.0 / 3.0), "333333333333333 e-1");
    EXPECT_EQ(shown(2.0 / 3.0), "666666666666667 e-1");
    EXPECT_EQ(shown(std::numeric_limits<double>::max()), "179769313486232 e308");
    EXPECT_EQ(shown(std::numeric_limits<double>::denorm_min()), "494065645841247 e-324");
}

TEST(fifteen_digits, carry_through_nines) {
    EXPECT_EQ(shown(0.99999999999999989), "100000000000000 e0");
    EXPECT_EQ(shown(9.9999999999999982), "100000000000000 e1");
}

TEST(fifteen_digits, drop_trailing_zeros_in_their_count_only) {
    EXPECT_EQ(fifteen_digits_of(1250.0).significant(), "125");
    EXPECT_EQ(fifteen_digits_of(0.0).significant(), "0");
    EXPECT_EQ(fifteen_digits_of(0.1 + 0.2).significant(), "3");
}

TEST(fifteen_digits, round_a_half_by_the_exact_binary_value) {
    // Shortest texts of 16 digits that end in 5: the binary value lies above, below or on the half.
    EXPECT_EQ(shown(1.000000000000005), rounded(1.000000000000005));
    EXPECT_EQ(shown(1.000000000000015), rounded(1.000000000000015));
    EXPECT_EQ(shown(0.5 + std::ldexp(1.0, -52)), rounded(0.5 + std::ldexp(1.0, -52)));
    EXPECT_EQ(shown(4503599627370497.5), "450359962737050 e15");
    EXPECT_EQ(shown(1000000000000002.5), "100000000000000 e15");
    EXPECT_EQ(shown(1000000000000005.0), "100000000000000 e15");  // to even
    EXPECT_EQ(shown(1000000000000015.0), "100000000000002 e15");
}

TEST(fifteen_digits, are_what_the_standard_library_rounds_to) {
    random_values random;
    for (int i = property_count(100000); i > 0; --i) {
        const double sized = std::ldexp(random.real(1.0, 2.0), random.whole(-1074, 1023));
        ASSERT_EQ(shown(sized), rounded(sized));
        const double typical = random.real(0.0, 100.0);
        ASSERT_EQ(shown(typical), rounded(typical));
        const double near_half = (random.whole(0, 1 << 30) + 0.5) / 1e15;
        ASSERT_EQ(shown(near_half), rounded(near_half));
        const double half = random.whole(0, 1 << 30) * 10.0 + 1e15 + 5.0;
        ASSERT_EQ(shown(half), rounded(half));
    }
}

}  // namespace
}  // namespace kvt
