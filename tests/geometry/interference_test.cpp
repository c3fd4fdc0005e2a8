// Tests of the interference check between the root fillet and the inner rotor.
#include "geometry/interference.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

/// A pair whose arrays the test sets: N = 7, eccentricity 2; inner points 0.1 degree apart about
/// the x axis once turned back, all at the same radius; fillet points at the same angle seen from
/// the inner axis.
struct made_up_pair {
    design_params design;
    rotor_profiles rotors;

    made_up_pair(double inner_radius, double fillet_radius, double fillet_angle_deg) {
        design.numlobes = 7;
        design.ecc = 2.0;
        rotors.profile_points = PROFILE_POINTS;
        for (std::size_t i = 0; i < 600; ++i) {
            const double angle = (static_cast<double>(i) * 0.1 + 0.05) * PI_D / 180.0;
            rotors.inner_x[i] = inner_radius * std::cos(angle);
            rotors.inner_y[i] = inner_radius * std::sin(angle);
        }
        rotors.fillet_x.assign(101, 0.0);
        rotors.fillet_y.assign(101, 0.0);
        for (std::size_t j = 0; j <= 100; ++j) {
            place_fillet(j, fillet_radius, fillet_angle_deg);
        }
    }

    /// Sets a fillet point by its radius and angle about the inner axis in mesh.
    void place_fillet(std::size_t j, double radius, double angle_deg) {
        const double angle = angle_deg * PI_D / 180.0;
        const double x = radius * std::cos(angle) + design.ecc;
        const double y = radius * std::sin(angle);
        const double about_outer = std::atan2(y, x) + PI_D / 7.0;
        rotors.fillet_x[j] = std::hypot(x, y) * std::cos(about_outer);
        rotors.fillet_y[j] = std::hypot(x, y) * std::sin(about_outer);
    }
};

}  // namespace

TEST(interference, is_the_depth_cut_to_four_decimals) {
    made_up_pair pair(20.0, 19.98765, 3.0);
    const auto found = find_interference(pair.design, pair.rotors);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->gap_max, 0.0123);
    EXPECT_EQ(found->gap_min, 0.0123);
}

TEST(interference, has_a_smallest_and_a_largest_gap) {
    made_up_pair pair(20.0, 20.5, 3.0);
    pair.place_fillet(20, 19.9, 3.0);
    pair.place_fillet(30, 19.95005, 3.0);
    const auto found = find_interference(pair.design, pair.rotors);
    ASSERT_TRUE(found.has_value());
    EXPECT_NEAR(found->gap_max, 0.1, 1.01e-4);
    EXPECT_EQ(found->gap_min, 0.0499);
}

TEST(interference, can_show_0_as_its_smaller_number) {
    made_up_pair pair(20.0, 19.99999, 3.0);
    pair.place_fillet(50, 19.99985, 3.0);
    const auto found = find_interference(pair.design, pair.rotors);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->gap_min, 0.0);
    EXPECT_EQ(found->gap_max, 0.0001);
}

TEST(interference, below_a_ten_thousandth_is_none) {
    const made_up_pair pair(20.0, 19.99999, 3.0);
    EXPECT_FALSE(find_interference(pair.design, pair.rotors).has_value());
}

TEST(interference, is_none_where_the_fillet_stays_outside) {
    const made_up_pair pair(20.0, 20.01, 3.0);
    EXPECT_FALSE(find_interference(pair.design, pair.rotors).has_value());
}

TEST(interference, ends_silently_when_a_fillet_point_lies_behind_all_inner_points) {
    made_up_pair pair(20.0, 19.0, 3.0);
    pair.place_fillet(100, 19.0, 50.0);
    EXPECT_FALSE(find_interference(pair.design, pair.rotors).has_value())
        << "although 100 points lie too deep";
}

TEST(interference, fails_when_the_first_fillet_point_lies_before_all_inner_points) {
    const made_up_pair pair(20.0, 19.0, -35.0);
    EXPECT_FAILURE(find_interference(pair.design, pair.rotors), failure::subscript_out_of_range);
}

TEST(interference, takes_the_nearer_of_two_inner_points) {
    made_up_pair pair(20.0, 19.5, 3.0);
    // In mesh the inner points stand at i 0.1 + 0.05 - 30 degrees: 329 at 2.95, 330 at 3.05.
    pair.rotors.inner_x[329] *= 2.0;
    pair.rotors.inner_y[329] *= 2.0;
    for (std::size_t j = 0; j <= 100; ++j) {
        pair.place_fillet(j, 19.5, j == 0 ? 3.02 : 2.96);
    }
    const auto found = find_interference(pair.design, pair.rotors);
    ASSERT_TRUE(found.has_value());
    EXPECT_NEAR(found->gap_min, 0.5, 1.01e-4);
    EXPECT_NEAR(found->gap_max, 20.5, 1.01e-4);
}

TEST(interference, fails_for_a_point_on_the_y_axis) {
    made_up_pair pair(20.0, 19.0, 3.0);
    pair.rotors.inner_x[5] = 0.0;
    EXPECT_FAILURE(find_interference(pair.design, pair.rotors), failure::division_by_zero);
}

TEST(interference, is_never_reported_for_three_lobes) {
    design_params design = sample_design();
    design.numlobes = 3;
    design.ecc = 2.0;
    design.radouter = 8.0;
    design.radinnroot = 5.0;
    design.outer_root = 11.5;
    design.clearn_half = 0.001;
    for (const double fillet : {0.5, 1.0, 2.0, 3.0, 4.0}) {
        design.fillet = fillet;
        EXPECT_FALSE(find_interference(design, rotor_pair_of(design)).has_value()) << fillet;
    }
}

}  // namespace kvt
