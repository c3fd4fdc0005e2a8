// Tests of the trochoid: circles, curvature check, points.
#include "geometry/trochoid.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

TEST(trochoid_parameters, of_the_sample_design_are_those_worked_out_by_hand) {
    // 7.5 + 14.15 + 2.85 = 24.5; a = 24.5 / (1/6 + 1) = 21; b = 21/6 = 3.5; R = 24.5 - 0.06; K
    // = 24.44 / 19.95
    rotor_profiles rotors;
    set_trochoid_parameters(sample_design(), rotors);
    EXPECT_NEAR(rotors.base_radius, 21.0, 1e-13);
    EXPECT_NEAR(rotors.roll_radius, 3.5, 1e-13);
    EXPECT_NEAR(rotors.trochoid_r, 24.44, 1e-13);
    EXPECT_NEAR(rotors.trochoid_ratio, 24.44 / 19.95, 1e-13);
}

TEST(trochoid_parameters, fail_for_an_eccentricity_of_0) {
    design_params design = sample_design();
    design.ecc = 0.0;
    rotor_profiles rotors;
    EXPECT_FAILURE(set_trochoid_parameters(design, rotors), failure::division_by_zero);
}

TEST(curvature, of_three_lobes_is_that_worked_out_by_hand) {
    // N = 3, K = 1.25: (3/4)^1.5 * 1/1.25 * ((1.5625 - 1) * 2)^0.5 * 10 = 0.649519 * 0.8
    // * 1.0606602 * 10
    design_params design;
    design.numlobes = 3;
    rotor_profiles rotors;
    rotors.trochoid_ratio = 1.25;
    rotors.trochoid_r = 10.0;
    EXPECT_NEAR(smallest_curvature_radius(design, rotors), 5.511351921262151, 1e-12);
}

TEST(curvature, is_0_up_to_a_ratio_of_1_so_every_lobe_is_refused) {
    design_params design = sample_design();
    rotor_profiles rotors;
    rotors.trochoid_r = 24.0;
    for (const double ratio : {0.5, 0.0, -0.5}) {
        rotors.trochoid_ratio = ratio;
        EXPECT_EQ(smallest_curvature_radius(design, rotors), 0.0);
    }
    rotors.trochoid_ratio = 1.0;
    EXPECT_EQ(smallest_curvature_radius(design, rotors), 0.0);
    design.radouter = 1e-300;
    EXPECT_TRUE(curves_too_tightly(design, rotors));
}

TEST(curvature, leaves_a_margin_of_5_in_10000) {
    design_params design;
    design.numlobes = 3;
    rotor_profiles rotors;
    rotors.trochoid_ratio = 1.25;
    rotors.trochoid_r = 10.0;
    const double rho = smallest_curvature_radius(design, rotors);
    design.radouter = rho / 1.000501;
    EXPECT_FALSE(curves_too_tightly(design, rotors));
    design.radouter = rho / 1.000499;
    EXPECT_TRUE(curves_too_tightly(design, rotors));
}

TEST(curvature, refuses_a_negative_eccentricity) {
    design_params design = sample_design();
    design.ecc = -2.85;
    rotor_profiles rotors;
    set_trochoid_parameters(design, rotors);
    EXPECT_TRUE(curves_too_tightly(design, rotors));
}

TEST(trochoid_point, stands_at_the_difference_of_the_radii_on_the_axis) {
    const point2 start = trochoid_point(21.0, 3.5, 2.85, 0.0);
    EXPECT_EQ(start.x, 24.5 - 2.85);
    EXPECT_EQ(start.y, 0.0);
    // Half a rolling turn later (t = pi/7, 7 t = pi) it stands at their sum.
    const double t = std::acos(-1.0) / 7.0;
    const point2 top = trochoid_point(21.0, 3.5, 2.85, t);
    EXPECT_NEAR(std::hypot(top.x, top.y), std::hypot(24.5 * std::cos(t) + 2.85, 24.5 * std::sin(t)),
                1e-12);
}

TEST(trochoid_point, fails_without_a_rolling_circle) {
    EXPECT_FAILURE(trochoid_point(1.0, 0.0, 1.0, 1.0), failure::division_by_zero);
}

TEST(trochoid, starts_one_fine_step_past_the_axis_and_ends_on_it) {
    const design_params design = sample_design();
    rotor_profiles rotors = prepared_rotors(design);
    ASSERT_TRUE(fill_trochoid(design, rotors));
    EXPECT_DOUBLE_EQ(rotors.troch_angle[0], 0.025 * PI_D / 180.0);
    EXPECT_NEAR(rotors.troch_angle[3599], 2.0 * PI_D, 1e-12);
    EXPECT_NEAR(rotors.troch_x[3599], 24.5 - 2.85, 1e-9);
    EXPECT_NEAR(rotors.troch_y[3599], 0.0, 1e-5);
    const point2 first =
        trochoid_point(rotors.base_radius, rotors.roll_radius, design.ecc, rotors.troch_angle[0]);
    EXPECT_EQ(rotors.troch_x[0], first.x);
    EXPECT_EQ(rotors.troch_y[0], first.y);
}

TEST(trochoid, repeats_its_first_point_at_the_end_of_the_flat_list) {
    const design_params design = sample_design();
    rotor_profiles rotors = prepared_rotors(design);
    fill_trochoid(design, rotors);
    EXPECT_EQ(rotors.troch_xy[7200], rotors.troch_x[0]);
    EXPECT_EQ(rotors.troch_xy[7201], rotors.troch_y[0]);
    for (std::size_t i = 0; i < 3600; ++i) {
        ASSERT_EQ(rotors.troch_xy[2 * i], rotors.troch_x[i]);
        ASSERT_EQ(rotors.troch_xy[2 * i + 1], rotors.troch_y[i]);
    }
}

TEST(trochoid, stops_at_its_second_point_when_it_crosses_itself) {
    design_params design = sample_design();
    design.ecc = 5.0;  // N e = 35 > a + b = 26.65: the curve has loops
    rotor_profiles rotors = prepared_rotors(design);
    EXPECT_FALSE(fill_trochoid(design, rotors));
    EXPECT_LT(rotors.troch_y[1], 0.0);
    EXPECT_EQ(rotors.troch_x[2], 0.0) << "the points behind stay as they were";
}

TEST(trochoid, keeps_older_points_behind_a_list_that_is_not_filled) {
    design_params design = sample_design();
    design.numlobes = 35;
    design.ecc = 0.5;
    rotor_profiles rotors = prepared_rotors(design);
    rotors.troch_x[3570] = 99.0;
    ASSERT_TRUE(fill_trochoid(design, rotors));
    EXPECT_NE(rotors.troch_x[3569], 0.0);
    EXPECT_EQ(rotors.troch_x[3570], 99.0);
    EXPECT_EQ(rotors.troch_xy[2 * 3570], rotors.troch_x[0]);
}

TEST(trochoid, fails_when_the_lobes_do_not_fit_their_counter) {
    design_params design = sample_design();
    design.numlobes = 32769;
    design.ecc = 1e-4;
    rotor_profiles rotors = prepared_rotors(design);
    EXPECT_FAILURE(fill_trochoid(design, rotors), failure::overflow);
}

}  // namespace kvt
