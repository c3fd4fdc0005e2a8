// Delivered flow: leaks, the capacity that the outlet uncovers, clipping, extremes.
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class delivered_flow_test : public testing::Test {
  protected:
    delivered_flow_test() { calculate(); }
    void calculate() {
        sample.prepare();
        calc_flow(sample.design_params, sample.rotor_profiles, sample.port_params,
                  sample.perf_inputs, sample.perf_results);
    }
    const perf_results& now() const { return sample.perf_results; }
    double capacity() const { return sample.rotor_profiles.capacity_cc; }
    performance_case sample = load_performance_case("n09_crank_oil");
};

/// Hagen-Poiseuille by hand: PI_D/8 * r^4 / eta * p / l with r 1 mm, eta 0.01 Pa s, p 1e5 Pa, l = 2
/// * 10 * PI_D mm: (PI_D / 8) * 1e-12 / 0.01 * 1e5 / (0.02 PI_D) = 1e-12 / 0.01 * 1e5 / 0.16
/// = 6.25e-5 m3/s.
TEST(tip_leak, is_the_flow_of_a_round_pipe) {
    EXPECT_NEAR(tip_leak(0.001, 10.0, 0.01, 1e5), 6.25e-5, 1e-18);
}

TEST_F(delivered_flow_test, loses_leaks_that_grow_with_pressure_alone) {
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        EXPECT_NEAR(now().leak_tip[j] / now().leak_tip[0], now().press_pa[j] / now().press_pa[0],
                    1e-12);
        EXPECT_NEAR(now().leak_face[j] / now().leak_face[0], now().press_pa[j] / now().press_pa[0],
                    1e-12);
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            const double geometric = now().effective_cc * now().speed_rpm[i] / 60000000.0;
            EXPECT_DOUBLE_EQ(now().flow_m3s[i][j],
                             geometric - now().leak_tip[j] - now().leak_face[j]);
        }
    }
}

/// Half the gap squared in the velocity and the whole gap in the area: a quarter of the leak, not
/// an eighth.
TEST_F(delivered_flow_test, halves_the_gap_of_balanced_rotors_in_the_velocity_only) {
    sample.perf_inputs.outlet_double_sided = sample.perf_inputs.shadow_ports = false;
    calculate();
    const perf_list one_sided = now().leak_face;
    for (const auto tick : {&perf_inputs::outlet_double_sided, &perf_inputs::shadow_ports}) {
        sample.perf_inputs.*tick = true;
        calculate();
        EXPECT_NEAR(now().leak_face[3] / one_sided[3], 0.25, 1e-15);
        sample.perf_inputs.*tick = false;
    }
}

TEST_F(delivered_flow_test, needs_no_more_than_the_rotor_annulus_of_a_wide_port) {
    sample.port_params.outlet.outer_r = sample.design_params.outer_root;
    sample.port_params.outlet.inner_r = sample.design_params.radinnroot;
    const double annulus =
        effective_capacity(sample.design_params, sample.rotor_profiles, sample.port_params);
    sample.port_params.outlet.outer_r += 3.0;
    sample.port_params.outlet.inner_r -= 3.0;
    EXPECT_EQ(effective_capacity(sample.design_params, sample.rotor_profiles, sample.port_params),
              annulus);
    sample.port_params.outlet.inner_r = sample.design_params.radinnroot + 1.0;
    EXPECT_LT(effective_capacity(sample.design_params, sample.rotor_profiles, sample.port_params),
              annulus);
}

TEST_F(delivered_flow_test, takes_the_whole_capacity_for_the_chamber_arc_and_not_more) {
    const rotor_profiles& rotors = sample.rotor_profiles;
    port_params& ports = sample.port_params;
    ports.outlet.outer_r = 1000.0;
    ports.outlet.inner_r = 0.0;
    ports.outlet.corners[START_OUTER].angle_deg = rotors.min_chamber_outer_angle;
    ports.outlet.corners[END_OUTER].angle_deg = 180.0 - rotors.max_chamber_outer_angle;
    EXPECT_NEAR(effective_capacity(sample.design_params, rotors, ports), capacity(), 1e-12);
    const double arc =
        ports.outlet.corners[END_OUTER].angle_deg - ports.outlet.corners[START_OUTER].angle_deg;
    ports.outlet.corners[END_OUTER].angle_deg =
        ports.outlet.corners[START_OUTER].angle_deg + arc / 2.0;
    EXPECT_NEAR(effective_capacity(sample.design_params, rotors, ports), capacity() / 2.0, 1e-12)
        << "a shorter port loses in proportion";
    ports.outlet.corners[END_OUTER].angle_deg = 179.0;
    EXPECT_EQ(effective_capacity(sample.design_params, rotors, ports), capacity())
        << "a longer one gains nothing";
}

/// Ports entered as 180/180 end at 0 in memory: the arc is negative.
TEST_F(delivered_flow_test, is_zero_for_a_port_that_ends_at_180) {
    sample.port_params.outlet.corners[END_INNER].angle_deg =
        sample.port_params.outlet.corners[END_OUTER].angle_deg = 0.0;
    calculate();
    EXPECT_LT(now().effective_cc, 0.0);
    EXPECT_EQ(now().flow_m3s, perf_grid{});
    EXPECT_EQ(now().vol_eff, perf_grid{});
    EXPECT_EQ(now().flow_max, 0.0);
    EXPECT_EQ(now().flow_min, 0.0);
}

TEST_F(delivered_flow_test, clips_to_zero_at_low_speed_and_high_pressure) {
    sample.perf_inputs.speed_lo = 1.0;
    sample.perf_inputs.pressure_hi = 200.0;
    calculate();
    EXPECT_EQ(now().flow_m3s[0][5], 0.0);
    EXPECT_EQ(now().vol_eff[0][5], 0.0);
    EXPECT_GT(now().flow_m3s[5][0], 0.0);
    EXPECT_EQ(now().flow_min, 0.0);
    EXPECT_EQ(now().vol_eff_min, 0.0);
}

TEST_F(delivered_flow_test, finds_its_extremes_anew_in_every_run) {
    EXPECT_EQ(now().flow_max, now().flow_m3s[5][0]);
    EXPECT_EQ(now().flow_min, now().flow_m3s[0][5]);
    EXPECT_EQ(now().vol_eff_max, now().vol_eff[5][0]);
    EXPECT_EQ(now().vol_eff_min, now().vol_eff[0][5]);
    const double largest = now().flow_max;
    sample.perf_inputs.speed_hi /= 2.0;
    calculate();
    EXPECT_LT(now().flow_max, largest);
}

TEST_F(delivered_flow_test, fails_where_the_port_begins_at_the_shaft) {
    sample.port_params.outlet.inner_r = sample.design_params.shaftdiameter / 2.0;
    EXPECT_FAILURE(calculate(), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
