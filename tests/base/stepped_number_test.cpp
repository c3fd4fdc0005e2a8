// Tests of counting a typed number by its last digit.
#include "base/stepped_number.hpp"

#include <gtest/gtest.h>
#include <tuple>

namespace kvt {
namespace {

using testing::TestWithParam;
using stepped_case = std::tuple<const char*, int, const char*>;

class stepped_number_test : public TestWithParam<stepped_case> {};

TEST_P(stepped_number_test, counts_the_last_digit) {
    const auto& [text, steps, expected] = GetParam();
    EXPECT_EQ(stepped_number(text, steps), expected);
}

INSTANTIATE_TEST_SUITE_P(
    texts, stepped_number_test,
    testing::Values(stepped_case{"2.85", 1, "2.86"}, stepped_case{"2.85", -10, "2.75"},
                    stepped_case{"2,85", 1, "2,86"}, stepped_case{"7", 1, "8"},
                    stepped_case{"9,9", 1, "10,0"}, stepped_case{"10.0", -1, "9.9"},
                    stepped_case{"0.05", -10, "-0.05"}, stepped_case{"-0.05", 10, "0.05"},
                    stepped_case{".5", 1, "0.6"}, stepped_case{"12.", 1, "13"},
                    stepped_case{" +3 ", 2, "5"}, stepped_case{"0", -1, "-1"},
                    stepped_case{"0.00", 1, "0.01"}, stepped_case{"-0.1", 1, "0.0"}));

TEST(stepped_number, has_no_last_digit_to_count_elsewhere) {
    for (const char* text : {"", "-", ".", "1e3", "abc", "1.2.3", "1 2", "1234567890123456"}) {
        EXPECT_EQ(stepped_number(text, 1), std::nullopt) << text;
        EXPECT_EQ(decimals_of(text), std::nullopt) << text;
    }
}

TEST(stepped_number, stops_at_zero_where_it_must) {
    EXPECT_EQ(stepped_number("0.05", -10, false), "0.00");
    EXPECT_EQ(stepped_number("0,05", -1, false), "0,04");
    EXPECT_EQ(stepped_number("3", -10, false), "0");
}

TEST(decimals_of, counts_behind_point_and_comma) {
    EXPECT_EQ(decimals_of("12"), 0);
    EXPECT_EQ(decimals_of("1.50"), 2);
    EXPECT_EQ(decimals_of("0,125"), 3);
}

}  // namespace
}  // namespace kvt
