// Tests of the Design assist's search: hand-made cases, its edges, and the single-step search it
// must equal.
#include "geometry/assist_search.hpp"

#include "base/constants.hpp"
#include "geometry/trochoid.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

design_params wanted(int lobes, double thick = 10.0) {
    design_params design;
    design.numlobes = lobes;
    design.clearn_half = 0.06;
    design.thick = thick;
    design.shaftdiameter = 18.0;
    design.minmaterial = 2.5;
    design.maxdiameter = 52.0;
    return design;
}

struct found {
    design_params design;
    fixed4 first, last;
};

found search(design_params design, double required) {
    rotor_profiles rotors;
    found result;
    result.first = find_root_and_eccentricity(fixed4::from(required), design, rotors);
    find_lobe_radius(design, rotors);
    result.last = grow_root_to_curvature(design, rotors);
    result.design = design;
    return result;
}

TEST(assist_root, is_the_first_quarter_step_above_the_required_capacity) {
    design_params design = wanted(7);
    rotor_profiles rotors;
    // At 14.25: ecc = 14.25/5 - 0.01 = 2.84, tip = 14.25 + 2 * 2.84 - 0.06 = 19.87,
    // (19.87^2 - 14.25^2) * 3.1415927 * 10 / 1000 = 6.02413...; at 14: ecc 2.79,
    // tip 19.52, 5.81292...
    EXPECT_EQ(find_root_and_eccentricity(fixed4::from(6.0), design, rotors).text(), "6.0241");
    EXPECT_EQ(design.radinnroot, 14.25);
    EXPECT_EQ(design.ecc, 2.84);
    EXPECT_EQ(design.radouter, 0.0);
    EXPECT_NEAR(design.outer_root, 14.25 + 3 * 2.84, 1e-12);
}

TEST(assist_root, goes_on_when_the_capacity_is_equal_to_the_required_one) {
    design_params design = wanted(7);
    rotor_profiles rotors;
    EXPECT_EQ(find_root_and_eccentricity(fixed4::from(6.0241), design, rotors).text(), "6.2392");
    EXPECT_EQ(design.radinnroot, 14.5);
    find_root_and_eccentricity(fixed4::from(6.024), design, rotors);
    EXPECT_EQ(design.radinnroot, 14.25);
}

TEST(assist_root, starts_at_the_shaft_and_its_material) {
    design_params design = wanted(7);
    rotor_profiles rotors;
    find_root_and_eccentricity(fixed4::from(0.5), design, rotors);
    EXPECT_EQ(design.radinnroot, 11.5);
}

TEST(assist_root, of_three_lobes_has_the_eccentricity_of_the_root_less_a_hundredth) {
    design_params design = wanted(3);
    rotor_profiles rotors;
    find_root_and_eccentricity(fixed4::from(0.5), design, rotors);
    EXPECT_EQ(design.ecc, 11.49);
}

TEST(assist_root, fails_for_two_lobes) {
    design_params design = wanted(2);
    rotor_profiles rotors;
    EXPECT_FAILURE(find_root_and_eccentricity(fixed4::from(6.0), design, rotors),
                   failure::division_by_zero);
}

TEST(assist_root, fails_when_the_steps_change_nothing_any_more) {
    design_params design = wanted(2000000, 1e-300);
    rotor_profiles rotors;
    EXPECT_FAILURE(find_root_and_eccentricity(fixed4::from(6.0), design, rotors),
                   failure::overflow);
    design.shaftdiameter = 1e25;
    EXPECT_FAILURE(find_root_and_eccentricity(fixed4::from(6.0), design, rotors),
                   failure::overflow);
}

TEST(assist_root, fails_when_the_eccentricity_has_no_four_decimals) {
    design_params design = wanted(3, 1e-300);
    rotor_profiles rotors;
    EXPECT_FAILURE(find_root_and_eccentricity(fixed4::from(6.0), design, rotors),
                   failure::overflow);
}

TEST(assist_diameter, exactly_reached_passes) {
    design_params design = wanted(7);
    design.outer_root = 52.0 / 2.0 - 2.5;
    EXPECT_FALSE(exceeds_assist_diameter(design));
    design.outer_root = std::nextafter(design.outer_root, 100.0);
    EXPECT_TRUE(exceeds_assist_diameter(design));
}

TEST(assist_lobe, goes_down_from_the_rounded_product_of_lobes_and_eccentricity) {
    const found result = search(wanted(7), 6.0);
    EXPECT_EQ(result.design.radouter, 7.25);
    EXPECT_EQ(result.design.radinnroot, 14.25);
    EXPECT_EQ(result.last.text(), "6.0241");
}

TEST(assist_lobe, leaves_the_uniform_trochoid_of_the_last_radius) {
    design_params design = wanted(7);
    rotor_profiles rotors;
    find_root_and_eccentricity(fixed4::from(6.0), design, rotors);
    find_lobe_radius(design, rotors);
    const double size = design.radouter + design.radinnroot + design.ecc;
    const double t = 100.0 * PI_D / 1800.0;
    EXPECT_EQ(rotors.troch_angle[100], t);
    EXPECT_EQ(rotors.troch_x[0],
              rotors.base_radius + rotors.roll_radius - (design.ecc - design.clearn_half));
    EXPECT_NEAR(rotors.troch_x[100], size * std::cos(t) - 2.78 * std::cos(7.0 * t), 1e-9);
    EXPECT_NEAR(rotors.troch_y[100], size * std::sin(t) - 2.78 * std::sin(7.0 * t), 1e-9);
    EXPECT_EQ(rotors.troch_angle[3599], 3599.0 * PI_D / 1800.0);
    EXPECT_EQ(rotors.troch_angle[3600], 0.0);
}

TEST(assist_lobe, fails_when_a_flank_has_no_points_of_its_own) {
    for (const int lobes : {1800, 4000}) {
        design_params design = wanted(lobes);
        rotor_profiles rotors;
        find_root_and_eccentricity(fixed4::from(6.0), design, rotors);
        EXPECT_THROW(find_lobe_radius(design, rotors), run_time_error) << lobes;
    }
}

TEST(assist_curvature, grows_the_root_and_leaves_the_eccentricity) {
    design_params design = wanted(3);
    design.shaftdiameter = 5.0;
    design.minmaterial = 1.0;
    const found result = search(design, 0.5);
    EXPECT_EQ(result.design.ecc, 3.49);
    EXPECT_EQ(result.design.radouter, 4.25);
    EXPECT_EQ(result.design.radinnroot, 3.75);
    EXPECT_EQ(result.first.text(), "3.0262");
    EXPECT_EQ(result.last.text(), "3.1349");
    EXPECT_EQ(result.design.outer_root, 13.97);  // that of the first stage
}

TEST(assist_curvature, has_no_margin_and_so_can_find_what_profiles_refuse) {
    random_values random;
    int refused = 0;
    int accepted = 0;
    for (int run = property_count(400); run > 0; --run) {
        design_params design = wanted(random.whole(3, 12), random.real(2.0, 40.0));
        design.shaftdiameter = random.real(2.0, 30.0);
        const found result = search(design, random.real(0.1, 50.0));
        rotor_profiles rotors;
        set_trochoid_parameters(result.design, rotors);
        (curves_too_tightly(result.design, rotors) ? refused : accepted) += 1;
        rotors.trochoid_r = result.design.radouter + result.design.radinnroot + result.design.ecc;
        rotors.trochoid_ratio = rotors.trochoid_r / (result.design.numlobes * result.design.ecc);
        EXPECT_LE(result.design.radouter, smallest_curvature_radius(result.design, rotors));
    }
    EXPECT_GT(accepted, 0);
    EXPECT_GT(refused, 0);
}

/// The search without passing over any step, straight from its formulas.
found single_step_search(design_params design, double required) {
    found result;
    rotor_profiles rotors;
    const double N = design.numlobes;
    const auto size = [&] { return design.radouter + design.radinnroot + design.ecc; };
    design.radouter = 0.0;
    design.radinnroot = design.shaftdiameter / 2.0 + design.minmaterial - 0.25;
    while (result.first.scaled() <= fixed4::from(required).scaled()) {
        design.radinnroot += 0.25;
        design.ecc = fixed4::from(design.radinnroot / (N - 2.0) - 0.01).value();
        set_rolling_circles(design, rotors);
        result.first = candidate_capacity(design, rotors);
    }
    const int middle = static_cast<int>(std::nearbyint(1800.0 / N - 1.0));
    const int i1 = static_cast<int>(std::nearbyint(middle * 0.6));
    const int i2 = static_cast<int>(std::nearbyint(middle * 1.4));
    const auto point = [&](int i) {
        return trochoid_point(rotors.base_radius, rotors.roll_radius,
                              design.ecc - design.clearn_half, i * PI_D / 1800.0);
    };
    const auto normal = [&](int i) {
        return -1.0 / ((point(i + 1).y - point(i).y) / (point(i + 1).x - point(i).x));
    };
    design.radouter = std::nearbyint(N * design.ecc) + 0.25;
    double lobe = 0.0;
    do {
        design.radouter -= 0.25;
        set_rolling_circles(design, rotors);
        const double m1 = normal(i1);
        const double m2 = normal(i2);
        const double cx =
            (point(i2).y - point(i1).y + point(i1).x * m1 - point(i2).x * m2) / (m1 - m2);
        const double cy = point(i1).y - (point(i1).x - cx) * m1;
        lobe = std::hypot(point(i1).x - cx, point(i1).y - cy);
    } while (!(lobe > N * design.radouter / (N - 1.0) + design.ecc));
    const auto rho = [&] {
        const double K = size() / (N * design.ecc);
        const double bracket = (K * K - 1.0) * (N - 1.0);
        return bracket < 0.0
                   ? 0.0
                   : std::pow(3.0 / (N + 1.0), 1.5) * (1.0 / K) * std::pow(bracket, 0.5) * size();
    };
    while (design.radouter > rho()) {
        design.radinnroot += 0.25;
    }
    set_rolling_circles(design, rotors);
    result.last = candidate_capacity(design, rotors);
    result.design = design;
    return result;
}

TEST(assist_search, ends_where_single_steps_end) {
    random_values random;
    for (int run = property_count(200); run > 0; --run) {
        design_params design = wanted(random.whole(3, 40), std::pow(10.0, random.real(-3.0, 2.0)));
        design.shaftdiameter = random.real(0.1, 60.0);
        design.minmaterial = random.real(0.1, 8.0);
        design.clearn_half = random.real(0.001, 0.3);
        const double required = std::pow(10.0, random.real(-2.0, 3.0));
        const found passed = search(design, required);
        const found single = single_step_search(design, required);
        ASSERT_EQ(passed.design.radinnroot, single.design.radinnroot) << "N " << design.numlobes;
        ASSERT_EQ(passed.design.ecc, single.design.ecc);
        ASSERT_EQ(passed.design.radouter, single.design.radouter) << "N " << design.numlobes;
        ASSERT_EQ(passed.first, single.first);
        ASSERT_EQ(passed.last, single.last);
    }
}

TEST(assist_search, finds_more_than_the_required_capacity_and_no_step_less_would_do) {
    random_values random;
    for (int run = property_count(300); run > 0; --run) {
        design_params design = wanted(random.whole(3, 20), random.real(0.5, 60.0));
        design.shaftdiameter = random.real(2.0, 40.0);
        const double required = random.real(0.05, 200.0);
        const found result = search(design, required);
        EXPECT_GT(result.first.value(), required);
        EXPECT_GE(result.last.value(), result.first.value());
        const double first_root = design.shaftdiameter / 2.0 + design.minmaterial;
        design_params less = design;
        less.radinnroot = (result.design.ecc + 0.01) * (design.numlobes - 2.0) - 0.25;
        if (less.radinnroot > first_root) {
            less.ecc = less.radinnroot / (design.numlobes - 2.0) - 0.01;
            const double tip = less.radinnroot + 2.0 * less.ecc - less.clearn_half;
            const double capacity =
                (tip * tip - less.radinnroot * less.radinnroot) * PI_D * design.thick / 1000.0;
            // ecc is rounded to 0.00005 mm, which moves the capacity by 4 r PI thick / 1000 times
            // that
            EXPECT_LE(capacity,
                      required + 0.0002 * less.radinnroot * design.thick / 1000.0 * PI_D * 4.0);
        }
    }
}

TEST(assist_search, takes_no_time_for_rotors_as_large_as_a_planet) {
    const auto start = std::chrono::steady_clock::now();
    for (const int lobes : {3, 7, 40, 300}) {
        const found result = search(wanted(lobes, 1e-6), 1e9);
        EXPECT_GT(result.design.radinnroot, 1e7);
        EXPECT_GT(result.first.value(), 1e9);
    }
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    EXPECT_LT(spent.count(), 20.0);
}

}  // namespace
}  // namespace kvt
