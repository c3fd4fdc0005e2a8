// Tests of ranges: every result of the numbers lies in the range of the results.
#include "geometry/number_range.hpp"

#include "support/property_runs.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr double ROUNDING = 1e-12;

void expect_in(double number, const number_range& range) {
    const double error = ROUNDING * (1.0 + std::fabs(number));
    EXPECT_GE(number, range.low - error);
    EXPECT_LE(number, range.high + error);
}

TEST(number_range, holds_what_its_numbers_can_give) {
    random_values random;
    for (int run = property_count(2000); run > 0; --run) {
        const double a = random.real(-10.0, 10.0);
        const double b = random.real(-10.0, 10.0);
        const number_range A = {a - random.real(0.0, 3.0), a + random.real(0.0, 3.0)};
        const number_range B = {b - random.real(0.0, 3.0), b + random.real(0.0, 3.0)};
        expect_in(a + b, A + B);
        expect_in(a - b, A - B);
        expect_in(a * b, A * B);
        expect_in(a * b, A * number_range{b, b});
        expect_in(a * b, A * b);
        expect_in(a * a, square_of(A));
        if (!B.has(0.0)) {
            expect_in(a / b, A / B);
        }
    }
}

TEST(number_range, is_not_a_number_behind_a_divisor_that_has_0) {
    const number_range quotient = number_range{1.0, 2.0} / number_range{-1.0, 1.0};
    EXPECT_TRUE(std::isnan(quotient.low));
    EXPECT_TRUE(std::isnan(quotient.high));
    EXPECT_TRUE(std::isnan((number_range{1.0, 2.0} / quotient).high));
    EXPECT_TRUE(std::isnan(square_of(quotient * 2.0).high));
}

TEST(number_range, of_squares_starts_at_0_across_the_origin) {
    const number_range squares = square_of({-2.0, 1.0});
    EXPECT_EQ(squares.low, 0.0);
    EXPECT_EQ(squares.high, 4.0);
}

TEST(number_range, grows_on_both_sides_when_widened) {
    const number_range wide = widened({1.0, 2.0}, 0.5);
    EXPECT_EQ(wide.low, 0.5);
    EXPECT_EQ(wide.high, 2.5);
}

}  // namespace
}  // namespace kvt
