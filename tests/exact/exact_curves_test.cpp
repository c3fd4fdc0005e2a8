// Tests of the curves: their ends, their extremes, their means.
#include "exact/exact_curves.hpp"

#include "exact/chamber.hpp"
#include "exact/exact_designs.hpp"
#include "exact/exact_figures.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(volume_over_life, goes_from_the_least_to_the_largest_and_back) {
    const design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    const exact_rotors exact = exact_rotors_of(design);
    const even_curve curve = volume_over_life(design);
    EXPECT_DOUBLE_EQ(curve.end, chamber_life(nominal_pair(design)));
    ASSERT_EQ(curve.values.size() % 12, 1U) << "as many steps in each pitch, an even number";
    EXPECT_NEAR(curve.values.front(), exact.chamber.least, 1e-6);
    EXPECT_NEAR(curve.values.back(), exact.chamber.least, 1e-6);
    EXPECT_NEAR(curve.values[curve.values.size() / 2], exact.chamber.largest, 1e-6);
    EXPECT_LE(curve.end / static_cast<double>(curve.values.size() - 1), 3.14159266 / 180.0);
}

TEST(flow_over_period, has_the_extremes_at_its_points) {
    const design_params design = pair_design(5, 2.85, 25.08, 9.0, 10.0);
    const even_curve curve = flow_over_period(design);
    const auto [least, largest] = std::ranges::minmax(curve.values);
    EXPECT_NEAR(largest - least, 0.08850, 2e-4) << "the irregularity of this pair";
    EXPECT_NEAR(curve.values.front(), curve.values.back(), 1e-9);
}

}  // namespace
}  // namespace kvt
