// Each checked helper: an ordinary case, its edges, and the failure it raises in place of infinity
// or NaN.
#include "base/checked_math.hpp"

#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace kvt {

namespace {

constexpr double INFINITE = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();
constexpr double LARGEST = std::numeric_limits<double>::max();
constexpr double HALF_PI = 1.5707963;

TEST(checked_divide, gives_the_quotient) {
    EXPECT_EQ(checked_divide(1.0, 4.0), 0.25);
    EXPECT_EQ(checked_divide(0.0, -2.0), 0.0);
}

TEST(checked_divide, refuses_a_zero_below_the_line_of_either_sign) {
    EXPECT_FAILURE(checked_divide(1.0, 0.0), failure::division_by_zero);
    EXPECT_FAILURE(checked_divide(1.0, -0.0), failure::division_by_zero);
    EXPECT_FAILURE(checked_divide(0.0, 0.0), failure::division_by_zero);
    EXPECT_FAILURE(checked_divide(NOT_A_NUMBER, 0.0), failure::division_by_zero);
}

TEST(checked_divide, refuses_a_quotient_that_is_not_finite) {
    EXPECT_FAILURE(checked_divide(LARGEST, 0.5), failure::overflow);
    EXPECT_FAILURE(checked_divide(INFINITE, 2.0), failure::overflow);
    EXPECT_FAILURE(checked_divide(1.0, NOT_A_NUMBER), failure::overflow);
}

TEST(checked_sqrt, gives_the_root_down_to_zero) {
    EXPECT_EQ(checked_sqrt(6.25), 2.5);
    EXPECT_EQ(checked_sqrt(0.0), 0.0);
    EXPECT_EQ(checked_sqrt(-0.0), 0.0);
}

TEST(checked_sqrt, refuses_negative_and_infinite_numbers_and_what_is_none) {
    EXPECT_FAILURE(checked_sqrt(-1e-300), failure::invalid_procedure_call);
    EXPECT_FAILURE(checked_sqrt(NOT_A_NUMBER), failure::invalid_procedure_call);
    EXPECT_FAILURE(checked_sqrt(INFINITE), failure::overflow);
}

TEST(checked_pow, gives_the_power) {
    EXPECT_EQ(checked_pow(2.0, 10.0), 1024.0);
    EXPECT_EQ(checked_pow(-2.0, 3.0), -8.0);
    EXPECT_EQ(checked_pow(6.25, 0.5), 2.5);
    EXPECT_EQ(checked_pow(0.0, 0.0), 1.0);
}

TEST(checked_pow, refuses_a_broken_root_of_a_negative_number) {
    EXPECT_FAILURE(checked_pow(-2.0, 0.5), failure::invalid_procedure_call);
    EXPECT_FAILURE(checked_pow(NOT_A_NUMBER, 2.0), failure::invalid_procedure_call);
}

TEST(checked_pow, refuses_a_power_that_is_not_finite) {
    EXPECT_FAILURE(checked_pow(10.0, 309.0), failure::overflow);
    EXPECT_FAILURE(checked_pow(0.0, -1.0), failure::overflow);
}

TEST(checked_finite, lets_finite_numbers_through_and_no_others) {
    EXPECT_EQ(checked_finite(LARGEST), LARGEST);
    EXPECT_EQ(checked_finite(-1.5), -1.5);
    EXPECT_FAILURE(checked_finite(INFINITE), failure::overflow);
    EXPECT_FAILURE(checked_finite(-INFINITE), failure::overflow);
    EXPECT_FAILURE(checked_finite(NOT_A_NUMBER), failure::overflow);
}

struct rounding_case {
    double x;
    double rounded;
    double floored;
};

constexpr rounding_case ROUNDINGS[] = {
    {0.5, 0.0, 0.0},
    {1.5, 2.0, 1.0},
    {2.5, 2.0, 2.0},
    {2.500001, 3.0, 2.0},
    {2.499999, 2.0, 2.0},
    {-0.5, 0.0, -1.0},
    {-1.5, -2.0, -2.0},
    {-2.5, -2.0, -3.0},
    {4503599627370497.0, 4503599627370497.0, 4503599627370497.0},
};

TEST(round_half_even, sends_a_tie_to_the_even_neighbour) {
    for (const rounding_case& expected : ROUNDINGS) {
        EXPECT_EQ(round_half_even(expected.x), expected.rounded) << expected.x;
    }
}

TEST(floor_to_int, is_the_largest_whole_number_not_above) {
    for (const rounding_case& expected : ROUNDINGS) {
        EXPECT_EQ(floor_to_int(expected.x), expected.floored) << expected.x;
    }
}

TEST(to_int16, rounds_half_to_even_inside_its_range) {
    EXPECT_EQ(to_int16(4.5), 4);
    EXPECT_EQ(to_int16(2.7), 3);
    EXPECT_EQ(to_int16(32767.4), 32767);
    EXPECT_EQ(to_int16(-32768.5), -32768);
}

TEST(to_int16, overflows_outside_its_range) {
    EXPECT_FAILURE(to_int16(32767.5), failure::overflow);
    EXPECT_FAILURE(to_int16(-32768.6), failure::overflow);
    EXPECT_FAILURE(to_int16(NOT_A_NUMBER), failure::overflow);
    EXPECT_FAILURE(to_int16(-INFINITE), failure::overflow);
}

TEST(to_int32, rounds_half_to_even_inside_its_range) {
    EXPECT_EQ(to_int32(4.5), 4);
    EXPECT_EQ(to_int32(2147483647.4), 2147483647);
    EXPECT_EQ(to_int32(-2147483648.5), -2147483647 - 1);
}

TEST(to_int32, overflows_outside_its_range) {
    EXPECT_FAILURE(to_int32(2147483647.5), failure::overflow);
    EXPECT_FAILURE(to_int32(-2147483649.0), failure::overflow);
    EXPECT_FAILURE(to_int32(NOT_A_NUMBER), failure::overflow);
}

// arctan(0) + half_pi; arctan(-0.6 / 0.8) + half_pi and arctan(0.6 / 0.8) + half_pi, the 3-4-5
// triangle. The root of -0.36 + 1 and the quotient are each off by half a unit in the last place,
// so the sum by less than 4e-16.
TEST(arc_cosine_form, gives_the_angle_with_the_half_turn_of_its_caller) {
    EXPECT_EQ(arc_cosine_form(0.0, HALF_PI), HALF_PI);
    EXPECT_NEAR(arc_cosine_form(0.6, HALF_PI), HALF_PI - 0.64350110879328437, 4e-16);
    EXPECT_NEAR(arc_cosine_form(-0.6, HALF_PI), HALF_PI + 0.64350110879328437, 4e-16);
}

TEST(arc_cosine_form, divides_by_zero_at_one_and_minus_one) {
    EXPECT_FAILURE(arc_cosine_form(1.0, HALF_PI), failure::division_by_zero);
    EXPECT_FAILURE(arc_cosine_form(-1.0, HALF_PI), failure::division_by_zero);
}

TEST(arc_cosine_form, fails_beyond_one) {
    EXPECT_FAILURE(arc_cosine_form(1.0000001, HALF_PI), failure::invalid_procedure_call);
    EXPECT_FAILURE(arc_cosine_form(NOT_A_NUMBER, HALF_PI), failure::invalid_procedure_call);
}

TEST(checked_at, reaches_the_first_and_the_last_element) {
    std::vector<int> items = {7, 8, 9};
    EXPECT_EQ(checked_at(items, 0), 7);
    checked_at(items, 2) = 10;
    EXPECT_EQ(items.back(), 10);
}

TEST(checked_at, refuses_an_index_past_either_bound) {
    const std::vector<int> items = {7, 8, 9};
    EXPECT_FAILURE(checked_at(items, -1), failure::subscript_out_of_range);
    EXPECT_FAILURE(checked_at(items, 3), failure::subscript_out_of_range);
}

}  // namespace

}  // namespace kvt
