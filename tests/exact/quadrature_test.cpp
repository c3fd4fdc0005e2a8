// Tests of integrals and extremes.
#include "exact/quadrature.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

TEST(quadrature, integrates_polynomials_to_the_last_digits) {
    EXPECT_NEAR(integral([](double x) { return std::pow(x, 15.0); }, 0.0, 2.0, 1), 4096.0, 1e-10);
    EXPECT_NEAR(integral([](double x) { return 3.0 * x * x; }, -1.0, 4.0, 3), 65.0, 1e-12);
}

TEST(quadrature, integrates_smooth_functions_by_panels) {
    EXPECT_NEAR(integral([](double x) { return std::exp(x); }, 0.0, 1.0, 4), std::numbers::e - 1.0,
                1e-14);
    EXPECT_NEAR(integral([](double x) { return std::sin(x); }, std::numbers::pi, 0.0, 8), -2.0,
                1e-13)
        << "backwards";
}

TEST(quadrature, finds_an_extreme_between_its_steps) {
    const auto hill = [](double x) { return 3.0 - (x - 0.777) * (x - 0.777); };
    const extreme top = largest_between(hill, 0.0, 2.0, 7);
    EXPECT_NEAR(top.at, 0.777, 1e-7);
    EXPECT_DOUBLE_EQ(top.value, 3.0);
    const extreme low = smallest_between([&](double x) { return -hill(x); }, 0.0, 2.0, 7);
    EXPECT_NEAR(low.value, -3.0, 1e-14);
}

TEST(quadrature, finds_an_extreme_at_an_end) {
    EXPECT_EQ(largest_between([](double x) { return x; }, 0.0, 5.0, 4).at, 5.0);
    EXPECT_EQ(smallest_between([](double x) { return x; }, 0.0, 5.0, 4).at, 0.0);
}

TEST(quadrature, finds_the_higher_of_two_hills) {
    const auto hills = [](double x) { return std::sin(x) + 0.1 * x; };
    EXPECT_NEAR(largest_between(hills, 0.0, 12.0, 24).at, std::acos(-0.1) + 2.0 * std::numbers::pi,
                1e-6);
}

}  // namespace
}  // namespace kvt
