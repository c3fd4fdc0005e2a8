// The rotor faces: mean radii, film areas, friction of the loaded face, shear of the films.
#include "performance/face_films.hpp"

#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class face_films_test : public testing::Test {
  protected:
    face_films_test() { calculate(); }
    void calculate() {
        sample.prepare();
        set_mean_radii(sample.design_params, sample.perf_results);
        set_face_areas(sample.design_params, sample.port_params, sample.perf_inputs,
                       sample.perf_results);
        set_pressure_friction(sample.perf_inputs, sample.port_params, sample.perf_results);
        set_face_shear(sample.design_params, sample.perf_inputs, sample.perf_results);
        set_periphery_shear(sample.design_params, sample.perf_inputs, sample.perf_results);
    }
    const perf_results& now() const { return sample.perf_results; }
    performance_case sample = load_performance_case("n04_fuel");
};

/// n04: tip 9.37, root 5, shaft 3.5: m1 = 7.185, m2 = 4.25 (3/4 of 5 is 3.75); outer: 15
/// and 11.6, 11.6 and 7.2.
TEST_F(face_films_test, take_the_radius_half_way_between_the_rings) {
    EXPECT_NEAR(now().inner_mean_r, (7.185 + 4.25) / 2.0, 1e-12);
    EXPECT_NEAR(now().outer_mean_r, (13.3 + 9.4) / 2.0, 1e-12);
}

TEST_F(face_films_test, count_the_solid_ring_from_three_quarters_of_the_root) {
    sample.design_params.shaftdiameter = 2.0;  // the middle would be 3, below 3.75
    calculate();
    EXPECT_NEAR(now().inner_mean_r, (7.185 + 3.75) / 2.0, 1e-12);
}

/// With ports from 0 to 90 degrees on either side half of the turn is land.
TEST_F(face_films_test, lie_where_no_port_is) {
    port_params& ports = sample.port_params;
    ports.outlet.corners[START_INNER].angle_deg = ports.inlet.corners[START_INNER].angle_deg = 0.0;
    ports.outlet.corners[END_INNER].angle_deg = ports.inlet.corners[END_INNER].angle_deg = 90.0;
    ports.outlet.corners[START_OUTER].angle_deg = ports.inlet.corners[START_OUTER].angle_deg = 0.0;
    ports.outlet.corners[END_OUTER].angle_deg = ports.inlet.corners[END_OUTER].angle_deg = 90.0;
    calculate();
    EXPECT_EQ(now().land_share_inner, 0.5);
    EXPECT_EQ(now().land_share_outer, 0.5);
    EXPECT_NEAR(now().face_area_inner,
                (now().area_tip - now().area_root) / 4.0 + (now().area_root - now().area_shaft),
                1e-10);
    EXPECT_NEAR(
        now().face_area_outer,
        (now().area_max - now().area_outer_root) + (now().area_outer_root - now().area_pitch) / 4.0,
        1e-10);
}

/// The share beyond the torque term is the same at every speed: a torque that no speed multiplies.
TEST_F(face_films_test, add_the_inner_friction_torque_as_it_is) {
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            const double outer = shaft_speed(now().speed_rpm[i]) * now().friction_torque_outer[j];
            EXPECT_NEAR(now().friction_power[i][j] - outer, now().friction_torque_inner[j], 1e-10);
        }
    }
    EXPECT_GT(now().friction_torque_inner[0], 0.0);
}

TEST_F(face_films_test, carry_friction_in_proportion_to_the_coefficient) {
    const perf_results before = now();
    sample.perf_inputs.friction *= 2.0;
    calculate();
    EXPECT_EQ(now().face_load_inner[2], 2.0 * before.face_load_inner[2]);
    EXPECT_EQ(now().friction_power[3][2], 2.0 * before.friction_power[3][2]);
}

class balanced_face_films_test : public face_films_test,
                                 public testing::WithParamInterface<bool perf_inputs::*> {};

TEST_P(balanced_face_films_test, have_no_friction_and_twice_the_shear_in_half_the_gap) {
    const perf_results one_sided = now();
    sample.perf_inputs.*GetParam() = true;
    calculate();
    EXPECT_EQ(now().friction_power, perf_grid{});
    EXPECT_EQ(now().face_load_inner, one_sided.face_load_inner) << "worked out all the same";
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        EXPECT_DOUBLE_EQ(now().face_shear_inner[i], 2.0 * one_sided.face_shear_inner[i])
            << "half the gap";
        EXPECT_DOUBLE_EQ(now().face_shear_outer[i], 2.0 * one_sided.face_shear_outer[i]);
        EXPECT_DOUBLE_EQ(now().face_power_inner[i], 4.0 * one_sided.face_power_inner[i])
            << "and two of them";
        EXPECT_DOUBLE_EQ(now().face_power_outer[i], 4.0 * one_sided.face_power_outer[i]);
    }
}

INSTANTIATE_TEST_SUITE_P(ticks, balanced_face_films_test,
                         testing::Values(&perf_inputs::outlet_double_sided,
                                         &perf_inputs::shadow_ports),
                         [](const auto& tick) {
                             return tick.index == 0 ? "outlet_double_sided" : "shadow_ports";
                         });

TEST_F(face_films_test, have_no_second_film_in_one_gap) {
    EXPECT_EQ(now().face_shear_inner_2, perf_list{});
    EXPECT_EQ(now().face_shear_outer_2, perf_list{});
}

TEST_F(face_films_test, turn_the_outer_rotor_slower) {
    const double slower = 3.0 / 4.0;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const double omega = shaft_speed(now().speed_rpm[i]);
        EXPECT_DOUBLE_EQ(now().face_power_inner[i], now().face_shear_inner[i] * omega);
        EXPECT_DOUBLE_EQ(now().face_power_outer[i], now().face_shear_outer[i] * omega * slower);
    }
}

TEST_F(face_films_test, vanish_with_their_areas) {
    sample.perf_inputs.Face_area_value = sample.perf_inputs.OD_area_value = 0.0;
    calculate();
    EXPECT_EQ(now().face_power_inner, perf_list{});
    EXPECT_EQ(now().face_power_outer, perf_list{});
    EXPECT_EQ(now().od_power, perf_list{});
}

/// Petroff: 2 pi r^3 b eta omega / c.
TEST_F(face_films_test, follow_petroff_on_the_periphery) {
    const design_params& design = sample.design_params;
    const double r = design.maxdiameter / 2000.0;
    const double torque = 6.2831854 * r * r * r * (design.thick / 1000.0) * now().dyn_visc *
                          shaft_speed(now().speed_rpm[4]) / (design.radial_clear / 1000.0);
    EXPECT_NEAR(now().od_shear[4], torque, 1e-15);
    EXPECT_DOUBLE_EQ(now().od_power[4], torque * shaft_speed(now().speed_rpm[4]));
}

TEST_F(face_films_test, fail_without_a_gap) {
    sample.design_params.axial_clear = 0.0;
    EXPECT_FAILURE(calculate(), failure::division_by_zero);
    sample.design_params.axial_clear = 0.05;
    sample.design_params.radial_clear = 0.0;
    EXPECT_FAILURE(calculate(), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
