// Contact geometry, contact stress, the largest cutter.
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Two equal materials: E / (2 (1 - nu^2)). E 200 GPa, nu 0.3: 200000 / 1.82 MPa.
TEST(combined_modulus, is_half_of_one_material) {
    perf_inputs inputs;
    inputs.young_inner_mpa = inputs.young_outer_mpa = 200000.0;
    inputs.poisson_inner = inputs.poisson_outer = 0.3;
    EXPECT_NEAR(combined_modulus(inputs), 200000.0 / 1.82, 1e-9);
    inputs.poisson_inner = inputs.poisson_outer = 1.0;
    EXPECT_FAILURE(combined_modulus(inputs), failure::division_by_zero);
}

class hertz_contact_test : public testing::Test {
  protected:
    hertz_contact_test() { sample.run(); }
    perf_results& now() { return sample.perf_results; }
    performance_case sample = load_performance_case("n07_engine_oil_groove");
};

/// The curvature of the trochoid offset inwards by the lobe radius, from the trochoid itself by
/// differences.
TEST_F(hertz_contact_test, has_the_curvature_of_the_offset_trochoid) {
    for (const std::size_t a : {20U, 90U, 160U}) {
        EXPECT_NEAR(
            now().lobe_arm_dist[1][a] - now().troch_curv_r[a] - sample.design_params.radouter,
            now().inner_curv_r[a], 1e-12);
        EXPECT_NEAR(1.0 / now().inner_curv_r[a] + 1.0 / sample.design_params.radouter,
                    1.0 / now().equiv_r[a], 1e-12);
    }
}

TEST_F(hertz_contact_test, stresses_by_force_modulus_and_radius) {
    const double thick = sample.design_params.thick;
    for (std::size_t a = 1; a <= 179; ++a) {
        ASSERT_GE(now().equiv_r[a], 0.0);
        const double stress = std::sqrt(now().combined_modulus * now().contact_force[2][3][a] /
                                        (thick * 6.2831854 * now().equiv_r[a]));
        EXPECT_EQ(now().hertz_stress[2][3][a], stress);
    }
}

TEST_F(hertz_contact_test, takes_sliding_and_speed_of_index_1_at_every_speed) {
    for (const std::size_t i : {0U, 1U, 5U}) {
        const double expected = now().hertz_stress[i][2][90] * now().sliding_velocity[1][90] *
                                30.0 / (now().speed_rpm[1] * 3.1415927);
        EXPECT_EQ(now().hertz_sliding[i][2][90], expected);
    }
}

TEST_F(hertz_contact_test, needs_the_speed_of_index_1) {
    now().speed_rpm[1] = 0.0;
    EXPECT_FAILURE(calc_hertz_and_side_load(sample.design_params, sample.perf_inputs, now()),
                   failure::division_by_zero);
}

TEST_F(hertz_contact_test, finds_the_largest_stress) {
    double largest = 0.0;
    for (const auto& speed : now().hertz_stress) {
        for (const perf_array& turn : speed) {
            largest = std::max(largest, *std::max_element(turn.begin(), turn.end()));
        }
    }
    EXPECT_EQ(now().hertz_max, largest);
}

/// A hollow wider than the lobe: -10 against 7.5 gives an equivalent radius of 30; -5 gives one of
/// -15.
TEST_F(hertz_contact_test, keeps_its_values_where_the_equivalent_radius_is_negative) {
    now().equiv_r[90] = -15.0;
    now().hertz_stress[5][5][90] = 4321.0;
    now().hertz_sliding[5][5][90] = 17.0;
    now().hertz_max = 0.0;
    set_contact_stress(sample.design_params.thick, 90, now());
    EXPECT_EQ(now().hertz_stress[5][5][90], 4321.0);
    EXPECT_EQ(now().hertz_sliding[5][5][90], 17.0);
    EXPECT_EQ(now().hertz_max, 4321.0) << "the stale value counts";
    now().equiv_r[90] = 15.0;
    set_contact_stress(sample.design_params.thick, 90, now());
    EXPECT_LT(now().hertz_stress[5][5][90], 4321.0);
}

TEST_F(hertz_contact_test, fails_for_an_equivalent_radius_of_zero) {
    now().equiv_r[90] = 0.0;
    EXPECT_FAILURE(set_contact_stress(sample.design_params.thick, 90, now()),
                   failure::division_by_zero);
}

TEST_F(hertz_contact_test, takes_the_tightest_hollow_for_the_cutter) {
    std::fill(now().inner_curv_r.begin(), now().inner_curv_r.end(), 12.0);
    now().inner_curv_r[1] = -30.0;
    now().inner_curv_r[40] = -9.5;
    now().inner_curv_r[41] = -8.25;
    now().inner_curv_r[42] = -9.0;
    EXPECT_EQ(tightest_concave_radius(now()), -8.25);
}

TEST_F(hertz_contact_test, starts_the_search_at_1_degree_with_any_sign) {
    std::fill(now().inner_curv_r.begin(), now().inner_curv_r.end(), -5.0);
    now().inner_curv_r[1] = 3.0;
    EXPECT_EQ(tightest_concave_radius(now()), 3.0);
}

TEST_F(hertz_contact_test, cuts_the_cutter_radius_downwards) {
    EXPECT_EQ(now().cutter_r, std::floor(tightest_concave_radius(now()) * 100.0) / 100.0);
    EXPECT_LT(now().cutter_r, tightest_concave_radius(now()));
}

/// c = 1: the three points stand in one line. The curvature radius then is that of the lobe itself,
/// turned inside out, and the equivalent radius divides by 0.
TEST_F(hertz_contact_test, fails_in_one_line_after_taking_the_arm_for_the_curvature) {
    now().lobe_dist[1][90] = 16.0;
    now().lobe_arm_dist[1][90] = 20.0;
    now().arm_base = 4.0;
    EXPECT_FAILURE(set_contact_geometry(7.5, 90, now()), failure::division_by_zero);
    EXPECT_EQ(now().pressure_angle[90], 3.1415927);
    EXPECT_EQ(now().troch_curv_r[90], 20.0);
    EXPECT_EQ(now().inner_curv_r[90], -7.5);
}

}  // namespace
}  // namespace kvt
