// Pressure ripple: outlet geometry, the line of recovery, the repeated passage, the percentage.
#include "base/checked_math.hpp"
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class pressure_ripple_test : public testing::Test {
  protected:
    pressure_ripple_test() { sample.run(); }
    perf_results& now() { return sample.perf_results; }
    void set_edge() {
        set_outlet_edge(sample.design_params, sample.port_params, sample.perf_inputs,
                        sample.perf_results);
    }
    performance_case sample = load_performance_case("n07_engine_oil_groove");
};

TEST_F(pressure_ripple_test, adds_half_a_turn_in_every_quadrant) {
    port_params& ports = sample.port_params;
    for (const double x : {-1.0, 1.0}) {
        for (const double y : {-1.0, 1.0}) {
            ports.outlet.corners[END_INNER].p.x = ports.outlet.corners[END_OUTER].p.x = 10.0 * x;
            ports.outlet.corners[END_INNER].p.y = ports.outlet.corners[END_OUTER].p.y = 10.0 * y;
            set_edge();
            EXPECT_NEAR(now().port_edge_angle, 3.1415927 * 1.25, 1e-7);
            EXPECT_NEAR(now().port_edge_r, std::sqrt(200.0), 1e-12);
        }
    }
    ports.outlet.corners[END_INNER].p.x = ports.outlet.corners[END_OUTER].p.x = 0.0;
    EXPECT_FAILURE(set_edge(), failure::division_by_zero);
}

/// Outer radius 20, inner 10, thickness 10 mm, from 10 degrees (inner) to 130 (outer): a third of
/// 300 PI_D 10 mm3.
TEST_F(pressure_ripple_test, takes_the_outer_end_and_the_inner_start_for_the_port_volume) {
    port_params& ports = sample.port_params;
    ports.outlet.outer_r = 20.0;
    ports.outlet.inner_r = 10.0;
    ports.outlet.corners[START_INNER].angle_deg = 10.0;
    ports.outlet.corners[START_OUTER].angle_deg = 77.0;
    ports.outlet.corners[END_INNER].angle_deg = 99.0;
    ports.outlet.corners[END_OUTER].angle_deg = 130.0;
    sample.design_params.thick = 10.0;
    set_edge();
    EXPECT_NEAR(now().port_volume, 3.1415927 * 1000.0 / 1e9, 1e-18);
}

TEST_F(pressure_ripple_test, takes_the_middle_of_the_nose_line_with_a_groove_only) {
    port_params& ports = sample.port_params;
    ports.groove_n1.x = -10.0;
    ports.groove_n2.x = -12.0;
    ports.groove_n1.y = 10.0;
    ports.groove_n2.y = 12.0;
    set_edge();
    EXPECT_NEAR(now().nose_angle, 3.1415927 * 1.25, 1e-7);
    sample.perf_inputs.metering_groove = false;
    ports.groove_n1.y = 0.0;
    set_edge();
    EXPECT_NEAR(now().nose_angle, 3.1415927 * 1.25, 1e-7) << "not touched";
}

TEST_F(pressure_ripple_test, never_lies_below_the_line_of_recovery) {
    std::fill(now().ripple_sector.begin(), now().ripple_sector.end(), 0.0);
    now().press_pa[0] = 100000.0;
    now().ripple_sector[0] = 99000.0;
    now().ripple_sector[1] = 95000.0;
    now().ripple_sector[2] = 80000.0;
    recover_pressure(80000.0, 7, now());
    EXPECT_NEAR(now().recovery, 20000.0 / 600.0, 1e-10);
    EXPECT_EQ(now().ripple_sector[0], 99000.0);
    EXPECT_EQ(now().ripple_sector[2], 80000.0 + now().recovery * 2)
        << "at its end the march lies below";
    EXPECT_NEAR(now().ripple_sector[300], 90000.0, 1e-9);
    EXPECT_NEAR(now().ripple_sector[600], 100000.0, 1e-9);
    EXPECT_EQ(now().ripple_sector[601], 0.0);
    EXPECT_NEAR(now().ripple_max, 100000.0, 1e-9);
    EXPECT_EQ(now().ripple_min, now().ripple_sector[2]);
}

TEST_F(pressure_ripple_test, repeats_the_passage_over_the_turn) {
    for (std::size_t c = 0; c < 5; ++c) {
        for (std::size_t t = 0; t < 600; ++t) {
            ASSERT_EQ(now().ripple_pressure[600 * c + t],
                      now().ripple_sector[t == 0 && c > 0 ? 0 : t]);
        }
    }
    EXPECT_EQ(now().ripple_pressure[3600], now().ripple_sector[600])
        << "the last passage ends behind the turn";
}

/// N = 8: 514.2857 steps a passage, t runs to 514, and the index is rounded.
TEST_F(pressure_ripple_test, bounds_its_loops_by_the_real_number_of_steps) {
    sample.design_params.numlobes = 8;
    calc_pressure_ripple(sample.design_params, sample.rotor_profiles, sample.port_params,
                         sample.perf_inputs, now());
    EXPECT_EQ(now().ripple_pressure[1], now().ripple_sector[1]);
    EXPECT_EQ(now().ripple_pressure[514], now().ripple_sector[0]) << "514.29 of the second passage";
    EXPECT_EQ(now().ripple_pressure[1029], now().ripple_sector[0]) << "1028.57 of the third";
    EXPECT_EQ(now().ripple_pressure[3600], now().ripple_sector[514])
        << "6 passages and 514 are 3599.7";
}

TEST_F(pressure_ripple_test, gives_two_decimals_cut) {
    const double percent = (now().ripple_max - now().ripple_min) * 100.0 / now().ripple_max;
    EXPECT_EQ(now().ripple_percent, std::floor(percent * 100.0) / 100.0);
}

TEST_F(pressure_ripple_test, falls_with_a_groove) {
    const double with_groove = now().ripple_percent;
    sample.perf_inputs.metering_groove = false;
    sample.run();
    EXPECT_LT(with_groove, now().ripple_percent);
}

TEST_F(pressure_ripple_test, forgets_the_rows_of_an_earlier_march) {
    const perf_array first = now().ripple_sector;
    std::fill(now().ripple_sector.begin(), now().ripple_sector.end(), 1e9);
    sample.run();
    EXPECT_EQ(now().ripple_sector, first);
}

}  // namespace
}  // namespace kvt
