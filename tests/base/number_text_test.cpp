// Numbers from texts, lenient and strict; texts from numbers.
#include "base/number_text.hpp"

#include "base/run_time_error.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace kvt {

namespace {

struct val_case {
    const char* text;
    double value;
};

constexpr val_case VALS[] = {
    {"", 0.0},
    {"0", 0.0},
    {"12.5", 12.5},
    {"  \t 12.5", 12.5},
    {"+3", 3.0},
    {"-3", -3.0},
    {"--3", 0.0},
    {"+-3", 0.0},
    {"- 3", 0.0},
    {".5", 0.5},
    {"-.5", -0.5},
    {"5.", 5.0},
    {".", 0.0},
    {"-", 0.0},
    {"-.", 0.0},
    {".e5", 0.0},
    {"1.2.3", 1.2},
    {"1 2", 1.0},
    {"007", 7.0},
    {"12abc", 12.0},
    {"abc12", 0.0},
    {"7,5", 7.0},
    {",5", 0.0},
    {"1e3", 1000.0},
    {"1E3", 1000.0},
    {"1e+3", 1000.0},
    {"1e-3", 0.001},
    {"5.e1", 50.0},
    {".5e1", 5.0},
    {"1e", 1.0},
    {"1e+", 1.0},
    {"1e-x", 1.0},
    {"1e 3", 1.0},
    {"1e3.5", 1000.0},
    {"1d3", 1.0},
    {"1D3", 1.0},
    {"e3", 0.0},
    {"0x10", 0.0},
    {"&H10", 0.0},
    {"inf", 0.0},
    {"-infinity", 0.0},
    {"nan", 0.0},
    {"NaN(1)", 0.0},
    {"\n5", 0.0},
    {"\xA0"
     "5",
     0.0},
    {"0e99999999999999999999", 0.0},
    {"1e-99999999999999999999", 0.0},
    {"-1e-400", 0.0},
    {"4.9e-324", 4.9406564584124654e-324},
    {"1e-310", 1e-310},
    {"1.7976931348623157e308", 1.7976931348623157e308},
    {"0.1", 0.1},
    {"22.700000000000003", 22.700000000000003},
};

TEST(val, takes_the_longest_leading_number) {
    for (const val_case& expected : VALS) {
        EXPECT_EQ(val(expected.text), expected.value) << '"' << expected.text << '"';
    }
}

TEST(val, stops_at_the_first_comma) {
    EXPECT_EQ(val("1,234.5"), 1.0);
}

TEST(val, stops_at_a_zero_byte) {
    EXPECT_EQ(val(std::string_view("1\0"
                                   "2",
                                   3)),
              1.0);
}

TEST(val, counts_zeros_and_exponent_together) {
    EXPECT_EQ(val("1" + std::string(400, '0') + "e-400"), 1.0);
    EXPECT_EQ(val("0." + std::string(399, '0') + "1e400"), 1.0);
    EXPECT_EQ(val("0." + std::string(399, '0') + "1"), 0.0);
}

TEST(val, overflows_above_the_largest_double) {
    for (const std::string& text :
         {std::string("1e309"), std::string("-1e309"), std::string("1.8e308"),
          std::string("1e99999999999999999999"), "1" + std::string(309, '0'),
          "0.0001e313" + std::string(3, '0')}) {
        EXPECT_FAILURE(val(text), failure::overflow);
    }
}

TEST(number_of_text, takes_blanks_around_one_number) {
    EXPECT_EQ(number_of_text("2.8"), 2.8);
    EXPECT_EQ(number_of_text("  2.8\t "), 2.8);
    EXPECT_EQ(number_of_text("-1E2"), -100.0);
    EXPECT_EQ(number_of_text("+.5"), 0.5);
}

TEST(number_of_text, refuses_everything_that_is_not_one_number) {
    for (const char* text : {"", " ", "\t", "x", "2.8x", "2.8 3", "2,8", "1e", "1e+", ".", "-",
                             "0x1F", "inf", "nan", "1d3", "2.8\r", "\n2.8", "4 %"}) {
        EXPECT_FAILURE(number_of_text(text), failure::type_mismatch);
    }
}

TEST(number_of_text, overflows_like_val) {
    EXPECT_FAILURE(number_of_text(" 1e309 "), failure::overflow);
}

TEST(integer_of_text, rounds_half_to_even) {
    EXPECT_EQ(integer_of_text("4.5"), 4);
    EXPECT_EQ(integer_of_text("2.7"), 3);
    EXPECT_EQ(integer_of_text(" -2147483648 "), -2147483647 - 1);
}

TEST(integer_of_text, fails_on_a_word_and_outside_its_range) {
    EXPECT_FAILURE(integer_of_text("seven"), failure::type_mismatch);
    EXPECT_FAILURE(integer_of_text("2147483648"), failure::overflow);
}

TEST(integer16_of_text, rounds_half_to_even) {
    EXPECT_EQ(integer16_of_text(" 1 "), 1);
    EXPECT_EQ(integer16_of_text("5.5"), 6);
    EXPECT_EQ(integer16_of_text("32767"), 32767);
}

TEST(integer16_of_text, fails_on_a_word_and_outside_its_range) {
    EXPECT_FAILURE(integer16_of_text(""), failure::type_mismatch);
    EXPECT_FAILURE(integer16_of_text("32768"), failure::overflow);
    EXPECT_FAILURE(integer16_of_text("-32769"), failure::overflow);
}

struct text_case {
    double value;
    const char* text;
};

constexpr text_case TEXTS[] = {
    {0.0, "0"},
    {-0.0, "0"},
    {1.0, "1"},
    {-1.5, "-1.5"},
    {0.5, "0.5"},
    {-0.25, "-0.25"},
    {100.0, "100"},
    {120.05, "120.05"},
    {0.1 + 0.2, "0.3"},
    {22.700000000000003, "22.7"},
    {1.0 / 3.0, "0.333333333333333"},
    {2.0 / 3.0, "0.666666666666667"},
    {123456789.123456789, "123456789.123457"},
    {0.0001, "0.0001"},
    {0.00012345, "0.00012345"},
    {0.000099999, "9.9999E-05"},
    {0.00009999999999999999, "0.0001"},
    {0.00001, "1E-05"},
    {-0.000012345, "-1.2345E-05"},
    {999999999999999.0, "999999999999999"},
    {999999999999999.4, "999999999999999"},
    {999999999999999.6, "1E+15"},
    {100000000000000.0, "100000000000000"},
    {1e15, "1E+15"},
    {1.5e15, "1.5E+15"},
    {1234567890123456.0, "1.23456789012346E+15"},
    {-1e100, "-1E+100"},
    {1e-300, "1E-300"},
    {4.9406564584124654e-324, "4.94065645841247E-324"},
    {1.7976931348623157e308, "1.79769313486232E+308"},
};

TEST(number_text, has_15_digits_without_trailing_zeros) {
    for (const text_case& expected : TEXTS) {
        EXPECT_EQ(number_text(expected.value), expected.text);
    }
}

TEST(number_text, refuses_what_is_no_finite_number) {
    EXPECT_FAILURE(number_text(std::numeric_limits<double>::infinity()), failure::overflow);
    EXPECT_FAILURE(number_text(-std::numeric_limits<double>::infinity()), failure::overflow);
    EXPECT_FAILURE(number_text(std::numeric_limits<double>::quiet_NaN()), failure::overflow);
}

TEST(str, puts_a_blank_in_place_of_the_missing_sign) {
    EXPECT_EQ(str(0.5), " 0.5");
    EXPECT_EQ(str(0.0), " 0");
    EXPECT_EQ(str(-0.0), " 0");
    EXPECT_EQ(str(-0.5), "-0.5");
}

TEST(print_form, has_a_blank_on_either_side) {
    EXPECT_EQ(print_form(1), " 1 ");
    EXPECT_EQ(print_form(0), " 0 ");
    EXPECT_EQ(print_form(-12), "-12 ");
    EXPECT_EQ(print_form(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808 ");
}

TEST(commas_to_points, replaces_every_comma) {
    EXPECT_EQ(commas_to_points("1,5"), "1.5");
    EXPECT_EQ(commas_to_points(",1,234.5,"), ".1.234.5.");
    EXPECT_EQ(commas_to_points(""), "");
}

/// A finite double of any size, each exponent as likely as the others.
double any_double(random_values& random) {
    double value = std::numeric_limits<double>::quiet_NaN();
    while (!std::isfinite(value)) {
        value = std::bit_cast<double>(random.bits());
    }
    return value;
}

TEST(number_text, is_within_half_a_unit_of_its_15th_digit_for_random_doubles) {
    random_values random;
    for (int left = property_count(20000); left > 0; --left) {
        const double value =
            random.whole(0, 1) == 0 ? any_double(random) : random.real(-1000.0, 1000.0);
        if (std::abs(value) < 1e-300 || std::abs(value) > 1e308) {
            continue;  // at the ends of the range 15 digits are more than a double holds, or round
                       // out of it
        }
        // Half a unit of the 15th digit is at most 5e-15 of the value; reading adds half
        // of 2.2e-16.
        EXPECT_LE(std::abs(val(number_text(value)) - value), 5.2e-15 * std::abs(value))
            << number_text(value);
    }
}

TEST(number_text, stays_the_same_when_read_and_written_again) {
    random_values random;
    for (int left = property_count(20000); left > 0; --left) {
        const double value =
            random.whole(0, 1) == 0 ? any_double(random) : random.real(-1000.0, 1000.0);
        if (std::abs(value) < 1e-290 || std::abs(value) > 1e308) {
            continue;  // a denormal has fewer than 15 digits of its own
        }
        const std::string text = number_text(value);
        EXPECT_EQ(number_text(number_of_text(text)), text);
    }
}

TEST(val, ends_in_a_finite_number_or_an_overflow_for_any_text) {
    random_values random;
    for (int left = property_count(50000); left > 0; --left) {
        const std::string text = random.text("0123456789..--++eE,  \txinfa", 14);
        try {
            EXPECT_TRUE(std::isfinite(val(text))) << text;
        } catch (const run_time_error& error) {
            EXPECT_EQ(error.kind(), failure::overflow) << text;
        }
    }
}

TEST(number_of_text, is_val_or_a_type_mismatch_for_any_text) {
    random_values random;
    int read_count = 0;
    for (int left = property_count(50000); left > 0; --left) {
        const std::string text = random.text("0123456789.-eE ", 6);
        try {
            const double value = number_of_text(text);
            EXPECT_EQ(value, val(text)) << text;
            ++read_count;
        } catch (const run_time_error& error) {
            EXPECT_TRUE(error.kind() == failure::type_mismatch || error.kind() == failure::overflow)
                << text;
        }
    }
    EXPECT_GT(read_count, 0);
}

TEST(print_form_single, has_a_place_for_the_sign_seven_digits_and_a_blank_behind) {
    EXPECT_EQ(print_form_single(8085.0F), " 8085 ");
    EXPECT_EQ(print_form_single(-30.0F), "-30 ");
    EXPECT_EQ(print_form_single(0.0F), " 0 ");
    EXPECT_EQ(print_form_single(-0.0F), " 0 ");
    EXPECT_EQ(print_form_single(7.5F), " 7.5 ");
    EXPECT_EQ(print_form_single(0.1F), " 0.1 ");
    EXPECT_EQ(print_form_single(1234.5678F), " 1234.568 ");
}

TEST(print_form_single, fails_for_what_is_no_finite_number) {
    EXPECT_FAILURE(print_form_single(std::numeric_limits<float>::infinity()), failure::overflow);
    EXPECT_FAILURE(print_form_single(std::numeric_limits<float>::quiet_NaN()), failure::overflow);
}

}  // namespace

}  // namespace kvt
