// Drive power and torque, mechanical and overall efficiency.
#include "performance/face_films.hpp"
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class drive_power_test : public testing::Test {
  protected:
    drive_power_test() { calculate(); }
    void calculate() { sample.run(); }
    const perf_results& now() const { return sample.perf_results; }
    performance_case sample = load_performance_case("n03_transfer_sharp");
};

TEST_F(drive_power_test, has_the_theoretical_hydraulic_torque_at_every_speed) {
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            const double torque =
                sample.rotor_profiles.capacity_cc * now().press_pa[j] / (2.0 * 3.1415927 * 1e6);
            EXPECT_NEAR(now().hyd_torque[i][j], torque, 1e-15);
        }
    }
}

TEST_F(drive_power_test, adds_five_terms_and_not_the_drag_of_the_tips) {
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        EXPECT_GT(now().tip_drag_power[i], 0.0);
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            EXPECT_EQ(now().drive_power[i][j], now().hyd_power[i][j] + now().friction_power[i][j] +
                                                   now().face_power_inner[i] +
                                                   now().face_power_outer[i] + now().od_power[i]);
            EXPECT_DOUBLE_EQ(now().drive_torque[i][j],
                             now().drive_power[i][j] / shaft_speed(now().speed_rpm[i]));
        }
    }
}

TEST_F(drive_power_test, is_hydraulic_power_and_friction_without_film_areas) {
    sample.perf_inputs.Face_area_value = sample.perf_inputs.OD_area_value = 0.0;
    calculate();
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            EXPECT_EQ(now().drive_power[i][j], now().hyd_power[i][j] + now().friction_power[i][j]);
        }
    }
}

TEST_F(drive_power_test, has_efficiencies_that_multiply) {
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            EXPECT_NEAR(now().mech_eff[i][j], now().hyd_torque[i][j] / now().drive_torque[i][j],
                        1e-14);
            EXPECT_EQ(now().overall_eff[i][j], now().vol_eff[i][j] * now().mech_eff[i][j]);
        }
    }
}

TEST_F(drive_power_test, finds_its_extremes_anew_in_every_run) {
    EXPECT_EQ(now().power_max, now().drive_power[5][5]);
    EXPECT_EQ(now().power_min, now().drive_power[0][0]);
    const perf_results before = now();
    sample.perf_inputs.speed_hi /= 2.0;
    sample.perf_inputs.pressure_hi /= 2.0;
    calculate();
    EXPECT_LT(now().power_max, before.power_max);
    EXPECT_LE(now().mech_eff_max, 1.0);
    EXPECT_LE(now().mech_eff_min, now().mech_eff_max);
    EXPECT_LE(now().overall_eff_min, now().overall_eff_max);
}

/// A total above the start value of the smallest power leaves that value.
TEST_F(drive_power_test, starts_its_smallest_power_at_ten_megawatts) {
    sample.rotor_profiles.capacity_cc = 1e9;
    sample.prepare();
    calc_drive_power(sample.design_params, sample.rotor_profiles, sample.port_params,
                     sample.perf_inputs, sample.perf_results);
    EXPECT_GT(now().drive_power[0][0], 1e7);
    EXPECT_EQ(now().power_min, 1e7);
}

TEST_F(drive_power_test, fails_without_a_tip_clearance) {
    sample.design_params.clearn_half = 0.0;
    EXPECT_FAILURE(calculate(), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
