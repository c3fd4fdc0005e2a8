// The highest speed without cavitation.
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class maximum_speed_test : public testing::Test {
  protected:
    maximum_speed_test() { sample.prepare(); }
    const perf_results& now() const { return sample.perf_results; }
    performance_case sample = load_performance_case("n07_engine_oil_groove");
};

/// 101300 Pa less the vapour pressure of 1 mmHg drive oil at sqrt(2 dp / density).
TEST_F(maximum_speed_test, fills_with_the_velocity_of_the_atmosphere) {
    sample.perf_inputs.pv = 1300.0;
    sample.perf_inputs.density_kgm3 = 800.0;
    sample.prepare();
    EXPECT_DOUBLE_EQ(now().fill_velocity, std::sqrt(250.0)) << "2 * 100000 / 800";
    EXPECT_DOUBLE_EQ(now().tip_speed_rpm,
                     std::sqrt(250.0) * 1000.0 / now().tip_radius * 60.0 / 6.2831854);
}

TEST_F(maximum_speed_test, counts_a_stored_end_angle_of_zero_as_180) {
    sample.port_params.inlet.corners[END_INNER].angle_deg = 180.0;
    sample.port_params.inlet.corners[END_OUTER].angle_deg = 180.0;
    sample.prepare();
    const double with_180 = now().port_area;
    sample.port_params.inlet.corners[END_INNER].angle_deg = 0.0;
    sample.port_params.inlet.corners[END_OUTER].angle_deg = 0.0;
    sample.prepare();
    EXPECT_EQ(now().port_area, with_180);
    EXPECT_GT(with_180, 0.0);
}

TEST_F(maximum_speed_test, doubles_for_a_double_sided_inlet_in_the_port_only) {
    const perf_results single = now();
    sample.perf_inputs.inlet_double_sided = true;
    sample.prepare();
    EXPECT_EQ(now().port_speed_rpm, 2.0 * single.port_speed_rpm);
    EXPECT_EQ(now().tip_speed_rpm, single.tip_speed_rpm);
    EXPECT_EQ(now().port_area, single.port_area);
    EXPECT_EQ(now().port_velocity, single.port_velocity);
}

TEST_F(maximum_speed_test, has_reynolds_number_2000_on_the_port_radius) {
    const double reynolds =
        sample.perf_inputs.density_kgm3 * now().port_velocity * now().port_equiv_r / now().dyn_visc;
    EXPECT_NEAR(reynolds, 2000.0, 1e-9);
    EXPECT_NEAR(now().port_equiv_r * now().port_equiv_r * 3.1415927, now().port_area, 1e-15);
}

TEST_F(maximum_speed_test, fails_for_a_vapour_pressure_above_the_atmosphere) {
    sample.perf_inputs.pv = 101300.1;
    EXPECT_FAILURE(sample.prepare(), failure::invalid_procedure_call);
    sample.perf_inputs.pv = 101300.0;
    EXPECT_NO_THROW(sample.prepare());
    EXPECT_EQ(now().tip_speed_rpm, 0.0);
}

TEST_F(maximum_speed_test, fails_for_a_port_without_area) {
    sample.port_params.inlet.inner_r = sample.port_params.inlet.outer_r = 10.0;
    sample.port_params.inlet.corners[START_INNER].angle_deg =
        sample.port_params.inlet.corners[START_OUTER].angle_deg;
    sample.port_params.inlet.corners[END_INNER].angle_deg =
        sample.port_params.inlet.corners[END_OUTER].angle_deg;
    EXPECT_FAILURE(sample.prepare(), failure::division_by_zero);
    sample.port_params.inlet.inner_r = 11.0;
    EXPECT_FAILURE(sample.prepare(), failure::invalid_procedure_call);
}

}  // namespace
}  // namespace kvt
