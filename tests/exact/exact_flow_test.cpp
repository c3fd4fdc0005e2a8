// Tests of flow and efficiency with the exact volume.
#include "exact/exact_flow.hpp"

#include "support/performed_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(exact_flow, is_the_volume_times_the_speed_less_the_leaks) {
    perf_results results;
    results.speed_rpm[2] = 3000.0;
    results.leak_tip[1] = 1.0e-6;
    results.leak_face[1] = 2.0e-6;
    const exact_flow exact = flow_of_volume(10.0, results);
    EXPECT_DOUBLE_EQ(exact.flow_m3s[2][1], 10.0 * 3000.0 / 60.0e6 - 3.0e-6);
    EXPECT_DOUBLE_EQ(exact.vol_eff[2][1], 1.0 - 3.0e-6 / 5.0e-4);
    EXPECT_DOUBLE_EQ(exact.vol_eff[2][0], 1.0);
}

TEST(exact_flow, is_never_negative) {
    perf_results results;
    results.speed_rpm[0] = 1.0;
    results.leak_tip[5] = 1.0;
    const exact_flow exact = flow_of_volume(10.0, results);
    EXPECT_EQ(exact.flow_m3s[0][5], 0.0);
    EXPECT_EQ(exact.vol_eff[0][5], 0.0);
    EXPECT_EQ(exact.vol_eff[3][5], 0.0) << "no speed, no flow";
}

TEST(exact_flow, is_the_products_with_the_products_volume) {
    const program kavetta = performed_design("n09_crank_oil");
    const perf_results& results = kavetta.perf_results;
    const exact_flow exact = flow_of_volume(results.effective_cc, results);
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            EXPECT_NEAR(exact.flow_m3s[i][j], results.flow_m3s[i][j], 1e-15);
        }
    }
}

TEST(max_speed_of_volume, is_the_lower_of_both_limits) {
    perf_results results;
    results.tip_speed_rpm = 5000.0;
    results.port_flow = 0.0005;
    EXPECT_DOUBLE_EQ(max_speed_of_volume(10.0, results), 3000.0) << "0.03 m3 a minute by 10 cm3";
    EXPECT_DOUBLE_EQ(max_speed_of_volume(5.0, results), 5000.0);
}

}  // namespace
}  // namespace kvt
