// Tests of the pair as geometry: contacts, flanks, against the product's own profile.
#include "exact/exact_pair.hpp"

#include "exact/exact_designs.hpp"
#include "exact/quadrature.hpp"
#include "geometry/inner_rotor.hpp"
#include "geometry/trochoid.hpp"
#include "support/sample_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double STEP = 1e-5;

point2 derivative_of_profile(const exact_pair& pair, double angle) {
    const point2 before = inner_profile_point(pair, angle - STEP);
    const point2 behind = inner_profile_point(pair, angle + STEP);
    return {(behind.x - before.x) / (2.0 * STEP), (behind.y - before.y) / (2.0 * STEP)};
}

TEST(exact_pair, takes_the_entries) {
    const design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    const exact_pair pair = nominal_pair(design);
    EXPECT_EQ(pair.lobes, 6);
    EXPECT_DOUBLE_EQ(pair.lobe_distance, 25.0);
    EXPECT_DOUBLE_EQ(pair.lobe_radius, 9.0);
    EXPECT_DOUBLE_EQ(pair.thick, 20.0);
    EXPECT_DOUBLE_EQ(pair.inner_turn(), 1.2);
    EXPECT_EQ(pair.pitch_point(), (point2{15.0, 0.0}));
    const exact_pair inner = pair_of_inner_rotor(design);
    EXPECT_DOUBLE_EQ(inner.lobe_distance, 25.0);
    EXPECT_DOUBLE_EQ(inner.lobe_radius, 9.05);
}

TEST(exact_pair, a_contact_lies_on_the_lobe_towards_the_pitch_point) {
    const exact_pair pair = nominal_pair(pair_design(6, 3.0, 25.0, 9.0, 20.0));
    const lobe_contact contact = contact_of_lobe(pair, 0.8);
    const point2 centre = lobe_centre(pair, 0.8);
    EXPECT_NEAR(distance(contact.place, centre), 9.0, 1e-12);
    EXPECT_NEAR(dot(contact.normal, contact.normal), 1.0, 1e-12);
    EXPECT_NEAR(cross(difference(pair.pitch_point(), centre), contact.normal), 0.0, 1e-12);
    EXPECT_GT(dot(difference(pair.pitch_point(), centre), contact.normal), 0.0);
}

/// The product's profile has 3600 points of the offset trochoid, clearance included.
TEST(exact_pair, the_inner_profile_is_the_one_that_is_cut) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    const exact_pair pair = pair_of_inner_rotor(design);
    for (std::size_t i = 0; i < 3600; i += 171) {
        const point2 cut{rotors.inner_x[i], rotors.inner_y[i]};
        const double whole = 2.0 * std::numbers::pi * (design.numlobes - 1);
        const double nearest =
            smallest_between(
                [&](double angle) { return distance(cut, inner_profile_point(pair, angle)); }, 0.0,
                whole, 4000)
                .value;
        EXPECT_LT(nearest, 1e-4) << i;
    }
}

TEST(exact_pair, the_flank_touches_with_its_normal) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const double angle = random.real(-3.1, 3.1);
        const point2 along = derivative_of_profile(pair, angle);
        const point2 normal =
            turned(contact_of_lobe(pair, angle).normal, -angle * pair.inner_turn());
        EXPECT_NEAR(dot(along, normal) / std::hypot(along.x, along.y), 0.0, 1e-5);
    }
}

TEST(exact_pair, profile_sweep_is_the_cross_product_of_place_and_derivative) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const double angle = random.real(-3.1, 3.1);
        const double expected =
            cross(inner_profile_point(pair, angle), derivative_of_profile(pair, angle));
        EXPECT_NEAR(profile_sweep(pair, angle), expected,
                    1e-6 * pair.lobe_distance * pair.lobe_distance);
    }
}

TEST(exact_pair, flank_curvature_is_that_of_three_points) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const double angle = random.real(-3.1, 3.1);
        const double h = 1e-3;
        const point2 a = inner_profile_point(pair, angle - h);
        const point2 b = inner_profile_point(pair, angle);
        const point2 c = inner_profile_point(pair, angle + h);
        const double area = cross(difference(b, a), difference(c, a));
        // The profile runs clockwise with growing angles, so convex flanks turn right.
        const double curvature = -2.0 * area / (distance(a, b) * distance(b, c) * distance(a, c));
        const double expected = flank_curvature(pair, angle);
        EXPECT_NEAR(curvature, expected, 2e-3 * (std::abs(expected) + 1.0 / pair.lobe_radius));
        EXPECT_NEAR(contact_curvature(pair, angle), 1.0 / pair.lobe_radius + expected,
                    1e-9 * std::abs(expected) + 1e-9);
    }
}

TEST(exact_pair, one_lobe_on_touches_one_tooth_on) {
    const exact_pair pair = nominal_pair(pair_design(7, 2.85, 24.5, 7.5, 10.0));
    const double angle = 0.4;
    const point2 here = inner_profile_point(pair, angle);
    const point2 turn_back = inner_profile_point(pair, angle + 2.0 * std::numbers::pi);
    const point2 expected = turned(here, -2.0 * std::numbers::pi / 6.0);
    EXPECT_NEAR(turn_back.x, expected.x, 1e-12);
    EXPECT_NEAR(turn_back.y, expected.y, 1e-12);
}

}  // namespace
}  // namespace kvt
