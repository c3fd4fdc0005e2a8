// Tests of the chamber window, the turned profiles and both chambers.
#include "geometry/chambers.hpp"

#include "geometry/chamber_window.hpp"
#include "geometry/polar_area.hpp"
#include "geometry/turned_profiles.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

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
    const rotor_profiles rotors = rotor_pair_of(sample_design());
    const turned_profile inner = turned_inner_profile(0.7, rotors);
    const turned_profile outer = turned_outer_profile(0.7, rotors);
    ASSERT_EQ(inner.size(), 3600U);
    ASSERT_EQ(2 * outer.size(), static_cast<std::size_t>(rotors.outer_xy_last) + 1);
    for (std::size_t i = 0; i < 3600; i += 7) {
        const point2 before = {rotors.inner_x[i], rotors.inner_y[i]};
        const point2 after = inner[i];
        ASSERT_NEAR(after.x, before.x * std::cos(0.7) - before.y * std::sin(0.7), 3e-6);
        ASSERT_NEAR(after.y, before.x * std::sin(0.7) + before.y * std::cos(0.7), 3e-6);
    }
    const point2 first = pair_at(rotors.outer_xy, 0);
    EXPECT_NEAR(outer[0].x, first.x * std::cos(0.7) - first.y * std::sin(0.7), 3e-6);
}

TEST(turned_profiles, about_the_outer_centre_miss_the_shift_of_the_first_pair) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    const turned_profile turned = turned_outer_profile_about_its_centre(0.0, design, rotors);
    EXPECT_NEAR(turned[0].x, rotors.outer_xy[0] + design.ecc, 3e-6);
    EXPECT_NEAR(turned[0].y, rotors.outer_xy[1], 3e-6);
    for (std::size_t i = 1; i < turned.size(); ++i) {
        ASSERT_NEAR(turned[i].x, rotors.outer_xy[2 * i], 3e-6) << i;
        ASSERT_NEAR(turned[i].y, rotors.outer_xy[2 * i + 1], 3e-6) << i;
    }
}

/// What is looked at nearly decides which points are turned at all.
TEST(turned_profiles, are_nearly_where_they_say) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(20); ++run) {
        const design_params design = sample_design();
        const rotor_profiles rotors = rotor_pair_of(design);
        const double turn = random.real(-3.0, 3.0);
        for (const turned_profile& profile :
             {turned_inner_profile(turn, rotors), turned_outer_profile(turn, rotors),
              turned_outer_profile_about_its_centre(turn, design, rotors)}) {
            EXPECT_LT(profile.nearness(), 1e-5);
            for (std::size_t i = 0; i < profile.size(); ++i) {
                const point2 off = difference(profile.nearly(i), profile[i]);
                ASSERT_LT(std::hypot(off.x, off.y), profile.nearness() * 0.6) << i;
            }
        }
    }
}

TEST(turned_profiles, fail_for_a_point_on_the_y_axis) {
    rotor_profiles rotors = rotor_pair_of(sample_design());
    rotors.inner_x[17] = 0.0;
    EXPECT_FAILURE(turned_inner_profile(0.0, rotors), failure::division_by_zero);
}

/// The area of the triangles that end within a_in of the negative x axis, of a profile turned about
/// the inner axis.
double area_left_of_axis(const std::vector<point2>& profile, double turn, double a_in) {
    const auto turned = [&](const point2& p) {
        return point2{p.x * std::cos(turn) - p.y * std::sin(turn),
                      p.x * std::sin(turn) + p.y * std::cos(turn)};
    };
    double area = 0.0;
    for (std::size_t i = 1; i < profile.size(); ++i) {
        const point2 before = turned(profile[i - 1]);
        const point2 point = turned(profile[i]);
        if (std::fabs(std::atan2(point.y, -point.x)) <= a_in) {
            area += std::fabs(before.x * point.y - before.y * point.x) / 2.0;
        }
    }
    return area;
}

double maximum_chamber_of(const rotor_profiles& rotors, double inner_turn, double outer_turn) {
    std::vector<point2> inner;
    std::vector<point2> outer;
    for (std::size_t i = 0; i < 3600; ++i) {
        inner.push_back({rotors.inner_x[i], rotors.inner_y[i]});
    }
    for (std::size_t k = 0; k < static_cast<std::size_t>(rotors.outer_xy_last); k += 2) {
        outer.push_back({rotors.outer_xy[k], rotors.outer_xy[k + 1]});
    }
    const double a_in = rotors.max_chamber_inner_angle * PI_D / 180.0;
    return area_left_of_axis(outer, outer_turn, a_in) - area_left_of_axis(inner, inner_turn, a_in);
}

TEST(maximum_chamber, of_odd_lobes_lies_on_the_negative_x_axis_as_generated) {
    const design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    calculate_maximum_chamber(design, rotors);
    EXPECT_NEAR(rotors.max_chamber_area, maximum_chamber_of(rotors, 0.0, 0.0), 1e-4);
    EXPECT_NEAR(rotors.max_chamber_area, 103.8655, 0.0001);
    EXPECT_EQ(rotors.max_chamber_volume, rotors.max_chamber_area * design.thick);
}

TEST(maximum_chamber, of_even_lobes_turns_both_profiles_about_the_inner_axis) {
    const design_params design = design_with(8, 2.0, 6.0, 16.0);
    rotor_profiles rotors = rotor_pair_of(design);
    calculate_maximum_chamber(design, rotors);
    EXPECT_NEAR(rotors.max_chamber_area, maximum_chamber_of(rotors, PI_D / 7.0, PI_D / 8.0), 1e-4);
    EXPECT_GT(std::fabs(rotors.max_chamber_area - maximum_chamber_of(rotors, 0.0, 0.0)), 1.0);
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
    EXPECT_NEAR(rotors.min_chamber_area, 3.2776, 0.0005);
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
