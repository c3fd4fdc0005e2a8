// Tests of the inner rotor profile, its plot list and the lobe fit.
#include "geometry/inner_rotor.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

TEST(inner_rotor, lies_inside_the_trochoid_at_the_lobe_radius_and_half_the_clearance) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    for (std::size_t i = 0; i < 3600; ++i) {
        const double dx = rotors.troch_x[i] - rotors.inner_x[i];
        const double dy = rotors.troch_y[i] - rotors.inner_y[i];
        ASSERT_NEAR(std::hypot(dx, dy), 7.56, 1e-12) << i;
        ASSERT_LT(std::hypot(rotors.inner_x[i], rotors.inner_y[i]),
                  std::hypot(rotors.troch_x[i], rotors.troch_y[i]));
    }
}

TEST(inner_rotor, has_its_root_on_the_axis_and_its_tip_half_a_lobe_further) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    // Root: radinnroot less half the clearance. Tip: two eccentricities further out.
    EXPECT_NEAR(std::hypot(rotors.inner_x[3599], rotors.inner_y[3599]), 14.15 - 0.06, 1e-6);
    double tip = 0.0;
    for (std::size_t i = 0; i < 3600; ++i) {
        tip = std::max(tip, std::hypot(rotors.inner_x[i], rotors.inner_y[i]));
    }
    EXPECT_NEAR(tip, 14.15 + 2.0 * 2.85 - 0.06, 1e-4);
}

TEST(inner_rotor, closes_the_trochoid_and_replaces_its_angles) {
    const rotor_profiles rotors = inner_rotor_of(sample_design());
    EXPECT_EQ(rotors.troch_x[3600], rotors.troch_x[0]);
    EXPECT_EQ(rotors.troch_y[3600], rotors.troch_y[0]);
    EXPECT_EQ(rotors.troch_angle[0], 0.0);
    EXPECT_EQ(rotors.troch_angle[900], 900.0 * PI_D / 1800.0);
}

TEST(inner_rotor, takes_the_slope_at_point_0_from_the_last_point) {
    const rotor_profiles rotors = inner_rotor_of(sample_design());
    const double dy = (rotors.troch_y[1] - rotors.troch_y[3599]) / 2.0;
    const double dx = (rotors.troch_x[1] - rotors.troch_x[3599]) / 2.0;
    EXPECT_EQ(rotors.troch_slope[0], dy / dx);
}

TEST(inner_rotor, fails_where_the_slope_is_0_as_for_a_vertical_tangent) {
    const design_params design = sample_design();
    rotor_profiles rotors = prepared_rotors(design);
    fill_trochoid(design, rotors);
    rotors.troch_y[11] = rotors.troch_y[9];
    EXPECT_FAILURE(fill_inner_rotor(design, rotors), failure::division_by_zero);
    fill_trochoid(design, rotors);
    rotors.troch_x[11] = rotors.troch_x[9];
    EXPECT_FAILURE(fill_inner_rotor(design, rotors), failure::division_by_zero);
    EXPECT_EQ(rotors.troch_slope[10], 0.0);
}

TEST(plot_list, of_every_resolution_holds_its_share_and_is_closed) {
    for (const int coarseness : {1, 2, 3, 4, 5, 6, 8, 9, 10}) {
        design_params design = sample_design();
        design.coarseness = static_cast<std::int16_t>(coarseness);
        const rotor_profiles rotors = inner_rotor_of(design);
        const std::size_t points = 3600U / static_cast<std::size_t>(coarseness);
        ASSERT_EQ(rotors.inner_plot_xy.size(), 2 * (points + 1)) << coarseness;
        for (std::size_t sample = 0; sample < points; ++sample) {
            const std::size_t i = (sample + 1) * static_cast<std::size_t>(coarseness) - 1;
            ASSERT_EQ(rotors.inner_plot_xy[2 * sample], rotors.inner_x[i]);
            ASSERT_EQ(rotors.inner_plot_xy[2 * sample + 1], rotors.inner_y[i]);
        }
        EXPECT_EQ(rotors.inner_plot_xy[2 * points], rotors.inner_plot_xy[0]);
        EXPECT_EQ(rotors.inner_plot_xy[2 * points + 1], rotors.inner_plot_xy[1]);
    }
}

TEST(plot_list, of_a_resolution_that_does_not_divide_the_points_rounds_its_last_elements) {
    design_params design = sample_design();
    design.coarseness = 7;  // 514 samples; the last index 7200/7 + 1 = 1029.57 rounds to 1030, the
                            // one before to 1029
    rotor_profiles rotors = prepared_rotors(design);
    rotors.inner_plot_xy.assign(1031, 0.0);
    fill_trochoid(design, rotors);
    fill_inner_rotor(design, rotors);
    EXPECT_EQ(rotors.inner_plot_xy[1026], rotors.inner_x[3597]);
    EXPECT_EQ(rotors.inner_plot_xy[1027], rotors.inner_y[3597]);
    EXPECT_EQ(rotors.inner_plot_xy[1028], 0.0);
    EXPECT_EQ(rotors.inner_plot_xy[1029], rotors.inner_x[6]);
    EXPECT_EQ(rotors.inner_plot_xy[1030], rotors.inner_y[6]);
}

TEST(plot_list, that_is_too_short_fails) {
    const design_params design = sample_design();
    rotor_profiles rotors = prepared_rotors(design);
    rotors.inner_plot_xy.assign(100, 0.0);
    fill_trochoid(design, rotors);
    EXPECT_FAILURE(fill_inner_rotor(design, rotors), failure::subscript_out_of_range);
}

TEST(lobe_fit, measures_the_circle_through_two_normals) {
    // A circle of radius 8 about (20, 3) in place of the trochoid: the normals meet in its centre.
    design_params design;
    design.numlobes = 7;
    rotor_profiles rotors;
    rotors.profile_points = PROFILE_POINTS;
    const auto place = [&rotors](std::size_t i, double angle) {
        rotors.troch_x[i] = 20.0 + 8.0 * std::cos(angle);
        rotors.troch_y[i] = 3.0 + 8.0 * std::sin(angle);
        rotors.troch_slope[i] = -1.0 / std::tan(angle);
    };
    place(180, 0.3);  // half = 3600/2/6 = 300; 0.6 of it is point 180, 1.4 is point 420
    place(420, 1.1);
    EXPECT_NEAR(measured_lobe_radius(design, rotors), 8.0, 1e-12);
}

TEST(lobe_fit, rounds_its_points_half_to_even) {
    // N = 17: half = 1800/16 = 112.5 rounds to 112; points 67.2 and 156.8 round to 67 and 157.
    design_params design;
    design.numlobes = 17;
    rotor_profiles rotors;
    rotors.profile_points = PROFILE_POINTS;
    rotors.troch_slope[67] = -1.0;
    rotors.troch_slope[157] = 1.0;
    rotors.troch_x[67] = 1.0;
    rotors.troch_y[67] = 1.0;
    rotors.troch_x[157] = -1.0;
    rotors.troch_y[157] = 1.0;
    EXPECT_DOUBLE_EQ(measured_lobe_radius(design, rotors), std::sqrt(2.0));
}

TEST(lobe_fit, fails_for_parallel_normals) {
    design_params design;
    design.numlobes = 7;
    rotor_profiles rotors;
    rotors.profile_points = PROFILE_POINTS;
    rotors.troch_slope[180] = rotors.troch_slope[420] = 2.0;
    EXPECT_FAILURE(measured_lobe_radius(design, rotors), failure::division_by_zero);
}

}  // namespace kvt
