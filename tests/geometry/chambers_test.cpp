// Tests of the chamber window, the turned profiles and both chambers.
#include "geometry/chamber_window.hpp"
#include "geometry/maximum_chamber.hpp"
#include "geometry/minimum_chamber.hpp"
#include "geometry/polar_area.hpp"
#include "geometry/turned_profiles.hpp"
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

design_params design_with(int lobes, double ecc, double radouter, double radinnroot) {
    design_params design = sample_design();
    design.numlobes = lobes;
    design.ecc = ecc;
    design.radouter = radouter;
    design.radinnroot = radinnroot;
    design.fillet = 0.0;
    design.outer_root = radinnroot + 3.0 * ecc + 1e-9;
    return design;
}

}  // namespace

TEST(half_pitch, is_half_the_angle_between_two_lobes) {
    design_params design;
    design.numlobes = 9;
    EXPECT_NEAR(half_pitch(design), PI_D / 9.0, 1e-15);
}

TEST(chamber_window, sees_the_contact_points_of_the_lobes_beside_it) {
    // The line from the pitch point at (N ecc, 0) to a lobe centre at radius R meets the lobe
    // radouter before it.
    const design_params design = sample_design();
    const rotor_profiles rotors = prepared_rotors(design);
    const double t = half_pitch(design);
    const double centre_x = rotors.trochoid_r * std::cos(t);
    const double centre_y = rotors.trochoid_r * std::sin(t);
    const double pitch_x = design.numlobes * design.ecc;
    const double h = std::hypot(centre_x - pitch_x, centre_y);
    const double share = (h - design.radouter) / h;
    const double contact_x = pitch_x + (centre_x - pitch_x) * share;
    const double contact_y = centre_y * share;
    const chamber_window window = window_of_chamber(design, rotors, t);
    EXPECT_NEAR(window.w2, std::atan2(contact_y, contact_x), 1e-9);
    EXPECT_NEAR(window.w1, std::atan2(contact_y, contact_x - design.ecc), 1e-9);
}

TEST(turned_profiles, keep_their_distances_from_the_inner_axis) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    clear_working_copies(rotors, 7200);
    turn_inner_profile(0.7, rotors);
    turn_outer_profile(0.7, rotors);
    for (std::size_t i = 0; i < 3600; i += 7) {
        const point2 before = {rotors.inner_x[i], rotors.inner_y[i]};
        const point2 after = {rotors.rot_inner_x[i], rotors.rot_inner_y[i]};
        ASSERT_NEAR(after.x, before.x * std::cos(0.7) - before.y * std::sin(0.7), 3e-6);
        ASSERT_NEAR(after.y, before.x * std::sin(0.7) + before.y * std::cos(0.7), 3e-6);
    }
    const point2 first = pair_at(rotors.outer_xy, 0);
    EXPECT_NEAR(rotors.rot_outer_xy[0], first.x * std::cos(0.7) - first.y * std::sin(0.7), 3e-6);
}

TEST(turned_profiles, about_the_outer_centre_miss_the_shift_of_the_first_pair) {
    const design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    clear_working_copies(rotors, 72000);
    turn_outer_profile_about_its_centre(0.0, design, rotors);
    EXPECT_NEAR(rotors.rot_outer_xy[0], rotors.outer_xy[0] + design.ecc, 3e-6);
    EXPECT_NEAR(rotors.rot_outer_xy[1], rotors.outer_xy[1], 3e-6);
    for (std::size_t k = 2; k < static_cast<std::size_t>(rotors.outer_xy_last); ++k) {
        ASSERT_NEAR(rotors.rot_outer_xy[k], rotors.outer_xy[k], 3e-6) << k;
    }
}

TEST(turned_profiles, start_from_empty_working_copies) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    rotors.rot_inner_x[3600] = rotors.rot_inner_y[36000] = rotors.rot_outer_xy[36000] = 1.0;
    clear_working_copies(rotors, 72000);
    EXPECT_EQ(rotors.rot_inner_x[3600], 0.0);
    EXPECT_EQ(rotors.rot_inner_y[36000], 0.0);
    EXPECT_EQ(rotors.rot_outer_xy[36000], 0.0);
    EXPECT_EQ(rotors.radius_scratch.size(), 72001U);
    clear_working_copies(rotors, 100);
    EXPECT_EQ(rotors.radius_scratch.size(), static_cast<std::size_t>(rotors.outer_xy_last) + 1);
}

TEST(turned_profiles, fail_for_a_point_on_the_y_axis) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    rotors.inner_x[17] = 0.0;
    EXPECT_FAILURE(turn_inner_profile(0.0, rotors), failure::division_by_zero);
}

TEST(maximum_chamber, of_odd_lobes_lies_on_the_negative_x_axis_as_generated) {
    const design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    calculate_maximum_chamber(design, rotors);
    EXPECT_NEAR(rotors.rot_inner_x[1234], rotors.inner_x[1234], 3e-6);
    EXPECT_NEAR(rotors.rot_outer_xy[4321], rotors.outer_xy[4321], 3e-6);
    EXPECT_NEAR(rotors.max_chamber_area, 103.8655, 0.0001);
    EXPECT_EQ(rotors.max_chamber_volume, rotors.max_chamber_area * design.thick);
}

TEST(maximum_chamber, of_even_lobes_turns_both_profiles_about_the_inner_axis) {
    const design_params design = design_with(8, 2.0, 6.0, 16.0);
    rotor_profiles rotors = rotor_pair_of(design);
    calculate_maximum_chamber(design, rotors);
    const double inner_turn = PI_D / 7.0;
    const double outer_turn = PI_D / 8.0;
    EXPECT_NEAR(rotors.rot_inner_x[5],
                rotors.inner_x[5] * std::cos(inner_turn) - rotors.inner_y[5] * std::sin(inner_turn),
                3e-6);
    EXPECT_NEAR(
        rotors.rot_outer_xy[10],
        rotors.outer_xy[10] * std::cos(outer_turn) - rotors.outer_xy[11] * std::sin(outer_turn),
        3e-6);
}

TEST(chambers, have_their_angles_in_degrees) {
    const design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    calculate_maximum_chamber(design, rotors);
    calculate_minimum_chamber(design, rotors);
    EXPECT_NEAR(rotors.max_chamber_inner_angle, 26.481119987490075, 1e-12);
    EXPECT_NEAR(rotors.max_chamber_outer_angle, 30.728887912562293, 1e-12);
    EXPECT_NEAR(rotors.min_chamber_inner_angle, 10.363761515176309, 1e-12);
    EXPECT_NEAR(rotors.min_chamber_outer_angle, 8.95381494430248, 1e-12);
    EXPECT_NEAR(rotors.min_chamber_area, 3.2777, 0.0005);
    EXPECT_EQ(rotors.min_chamber_volume, rotors.min_chamber_area * design.thick);
}

TEST(chambers, keep_the_older_volume_when_their_sums_fail) {
    const design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    rotors.max_chamber_area = rotors.max_chamber_volume = 7.0;
    rotors.inner_x[17] = 0.0;
    EXPECT_FAILURE(calculate_maximum_chamber(design, rotors), failure::division_by_zero);
    EXPECT_EQ(rotors.max_chamber_area, 7.0);
    EXPECT_EQ(rotors.max_chamber_volume, 7.0);
}

TEST(chambers, differ_by_the_delivery_of_one_chamber) {
    // A pump delivers N-1 times the difference of its chambers a turn of the inner rotor, per lobe
    // of the outer one N; the annulus of the capacity is the usual estimate of it, within a few
    // percent.
    const design_params design = design_with(7, 2.85, 7.5, 14.15);
    rotor_profiles rotors = rotor_pair_of(design);
    calculate_maximum_chamber(design, rotors);
    calculate_minimum_chamber(design, rotors);
    const double delivered = 6.0 * (rotors.max_chamber_volume - rotors.min_chamber_volume) / 1000.0;
    EXPECT_NEAR(delivered, 6.0137, 0.1);
}

}  // namespace kvt
