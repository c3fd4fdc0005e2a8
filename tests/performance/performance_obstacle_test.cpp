// What stands in the way of a performance, from the records alone.
#include "performance/performance_obstacle.hpp"

#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class performance_obstacle_test : public testing::Test {
  protected:
    std::optional<message> of_ports() const {
        return port_obstacle(sample.design_params, sample.port_params);
    }
    std::optional<message> of_all() const {
        return performance_obstacle(sample.design_params, sample.rotor_profiles, sample.port_params,
                                    sample.perf_inputs);
    }
    performance_case sample = load_performance_case("n07_engine_oil_groove");
};

TEST_F(performance_obstacle_test, is_none_for_the_samples) {
    for (const char* name : SAMPLES) {
        sample = load_performance_case(name);
        EXPECT_EQ(of_ports(), std::nullopt) << name;
        EXPECT_EQ(of_all(), std::nullopt) << name;
    }
}

TEST_F(performance_obstacle_test, knows_an_outlet_entered_with_180_by_the_zeros_in_memory) {
    sample.port_params.outlet.corners[END_INNER].angle_deg =
        sample.port_params.outlet.corners[END_OUTER].angle_deg = 0.0;
    EXPECT_EQ(of_ports(), message::hint_outlet_ends_at_180);
    EXPECT_EQ(of_all(), message::hint_outlet_ends_at_180);
    sample.port_params.outlet.corners[END_INNER].angle_deg =
        sample.port_params.outlet.corners[END_OUTER].angle_deg = 10.0;
    sample.port_params.outlet.corners[START_OUTER].angle_deg = 10.0;
    EXPECT_EQ(of_ports(), message::hint_outlet_without_arc);
    sample.port_params.outlet.corners[START_OUTER].angle_deg = 9.9;
    EXPECT_EQ(of_ports(), std::nullopt);
}

/// 20 mm and 90 degrees outside, 10 mm and 360 degrees inside: the same area.
TEST_F(performance_obstacle_test, is_an_inlet_whose_sectors_are_equal) {
    port_params& ports = sample.port_params;
    ports.inlet.outer_r = 20.0;
    ports.inlet.corners[START_OUTER].angle_deg = 10.0;
    ports.inlet.corners[END_OUTER].angle_deg = 100.0;
    ports.inlet.inner_r = 10.0;
    ports.inlet.corners[START_INNER].angle_deg = 0.0;
    ports.inlet.corners[END_INNER].angle_deg = 360.0;
    EXPECT_EQ(of_ports(), message::hint_inlet_without_area);
    ports.inlet.corners[END_INNER].angle_deg = 359.0;
    EXPECT_EQ(of_ports(), std::nullopt);
}

/// The inlet's 0 in memory counts as 180, so it hides nothing.
TEST_F(performance_obstacle_test, is_no_inlet_that_ends_at_180) {
    sample.port_params.inlet.corners[END_INNER].angle_deg =
        sample.port_params.inlet.corners[END_OUTER].angle_deg = 0.0;
    EXPECT_EQ(of_all(), std::nullopt);
}

TEST_F(performance_obstacle_test, is_the_outlet_that_was_never_designed) {
    sample.port_params = {};
    EXPECT_EQ(of_ports(), message::no_ports_yet);
    EXPECT_EQ(of_all(), message::no_ports_yet);
}

TEST_F(performance_obstacle_test, begins_where_the_outlet_leaves_the_chambers_or_meets_the_shaft) {
    const double root = sample.design_params.radinnroot;
    sample.port_params.outlet.inner_r = root;
    sample.port_params.outlet.outer_r = root;
    EXPECT_EQ(of_ports(), message::hint_outlet_misses_chambers);
    sample.port_params.outlet.outer_r = root + 0.01;
    EXPECT_EQ(of_ports(), std::nullopt);
    sample.port_params.outlet.inner_r = sample.design_params.shaftdiameter / 2.0;
    EXPECT_EQ(of_ports(), message::hint_outlet_within_shaft);
    sample.port_params.outlet.inner_r += 0.01;
    EXPECT_EQ(of_ports(), std::nullopt);
}

TEST_F(performance_obstacle_test, begins_at_the_pressure_of_the_atmosphere) {
    sample.perf_inputs.pv = 101300.0;
    EXPECT_EQ(of_all(), message::hint_vapour_pressure);
    sample.perf_inputs.pv = 101299.0;
    EXPECT_EQ(of_all(), std::nullopt);
}

/// 1 - 1.2^2 is -0.44; beside 1 - 0.3^2 = 0.91 of the same modulus the sum is still positive.
TEST_F(performance_obstacle_test, are_poissons_ratios_only_when_their_sum_is_gone) {
    sample.perf_inputs.young_inner_mpa = sample.perf_inputs.young_outer_mpa;
    sample.perf_inputs.poisson_inner = 1.2;
    sample.perf_inputs.poisson_outer = 0.3;
    EXPECT_EQ(of_all(), std::nullopt);
    sample.perf_inputs.poisson_inner = sample.perf_inputs.poisson_outer = 1.0;
    EXPECT_EQ(of_all(), message::hint_poissons_ratio);
}

}  // namespace
}  // namespace kvt
