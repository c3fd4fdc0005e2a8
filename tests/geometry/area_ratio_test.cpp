// Tests of the area ratio.
#include "geometry/area_ratio.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <span>

namespace kvt {

namespace {

/// The area between the origin and the points first .. last of a profile, signed.
double shoelace(std::span<const double> x, std::span<const double> y, std::size_t last) {
    double sum = 0.0;
    for (std::size_t i = 1; i <= last; ++i) {
        sum += x[i - 1] * y[i] - x[i] * y[i - 1];
    }
    return sum / 2.0;
}

}  // namespace

TEST(inner_profile_area, is_that_of_the_open_polygon) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    const double expected = shoelace(rotors.inner_x, rotors.inner_y, 3599);
    EXPECT_NEAR(inner_profile_area(rotors), expected, 1e-8 * expected);
}

TEST(outer_profile_area, is_that_of_the_polygon_where_the_profile_does_not_turn_back) {
    design_params design = sample_design();
    design.fillet = 0.0;
    design.radouter =
        9.0;  // seen from the inner axis, the flanks of smaller lobes hide a part of the root
    rotor_profiles rotors = rotor_pair_of(design);
    const double expected =
        shoelace(rotors.outer_x, rotors.outer_y, static_cast<std::size_t>(rotors.outer_last));
    EXPECT_NEAR(outer_profile_area(rotors), expected, 1e-8 * expected);
}

TEST(outer_profile_area, counts_the_parts_that_turn_back_as_positive) {
    design_params design = sample_design();
    design.fillet = 0.0;
    rotor_profiles rotors = rotor_pair_of(design);
    double expected = 0.0;
    for (std::size_t m = 1; m <= static_cast<std::size_t>(rotors.outer_last); ++m) {
        expected += std::fabs(rotors.outer_x[m - 1] * rotors.outer_y[m] -
                              rotors.outer_x[m] * rotors.outer_y[m - 1]);
    }
    EXPECT_NEAR(outer_profile_area(rotors), expected / 2.0, 1e-8 * expected);
    EXPECT_GT(expected / 2.0, 1.0 + shoelace(rotors.outer_x, rotors.outer_y,
                                             static_cast<std::size_t>(rotors.outer_last)));
}

TEST(area_ratio, is_the_share_of_the_opening_that_the_inner_rotor_leaves_free) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    calculate_area_ratio(rotors);
    EXPECT_EQ(rotors.inner_area, inner_profile_area(rotors));
    EXPECT_EQ(rotors.outer_area, outer_profile_area(rotors));
    EXPECT_NEAR(rotors.area_ratio, 100.0 - rotors.inner_area / rotors.outer_area * 100.0, 1e-12);
    EXPECT_NEAR(rotors.area_ratio, 28.655, 0.005);
}

TEST(area_ratio, of_no_opening_fails_and_keeps_the_older_numbers) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    calculate_area_ratio(rotors);
    const double inner = rotors.inner_area;
    const double ratio = rotors.area_ratio;
    std::fill(rotors.outer_xy.begin(), rotors.outer_xy.end(), 1.0);
    EXPECT_FAILURE(calculate_area_ratio(rotors), failure::division_by_zero);
    EXPECT_EQ(rotors.inner_area, inner);
    EXPECT_EQ(rotors.area_ratio, ratio);
}

}  // namespace kvt
