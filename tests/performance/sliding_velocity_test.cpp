// Sliding velocity of the lobes.
#include "support/performance_case.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

namespace kvt {
namespace {

class sliding_velocity_test : public testing::Test {
  protected:
    sliding_velocity_test() { calculate(); }
    void calculate() {
        sample.prepare();
        calc_sliding_velocity(sample.design_params, sample.rotor_profiles, sample.perf_results);
    }
    const perf_results& now() const { return sample.perf_results; }
    performance_case sample = load_performance_case("n04_fuel");
};

/// At 240 degrees and N = 4 the angle is half a turn: the distance is n_ecc + trochoid_r = 4 * 2.2
/// + 13.17.
TEST_F(sliding_velocity_test, is_largest_where_the_lobe_is_farthest) {
    EXPECT_NEAR(now().contact_dist[240], 21.97, 1e-6);
    const double speed = now().speed_rpm[0];
    EXPECT_NEAR(now().sliding_velocity[0][240], (21.97 - 6.0) * speed * 3.1415927 / 120.0, 1e-3);
    EXPECT_EQ(now().sliding_max[0], now().sliding_velocity[0][240]);
}

TEST_F(sliding_velocity_test, has_the_mean_of_360_degrees) {
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const perf_array& turn = now().sliding_velocity[i];
        EXPECT_EQ(now().sliding_mean[i],
                  std::accumulate(turn.begin() + 1, turn.end(), 0.0) / 360.0);
        EXPECT_EQ(turn[0], 0.0) << "degree 0 is not computed";
    }
}

TEST_F(sliding_velocity_test, grows_with_the_speed) {
    for (std::size_t a = 1; a <= 360; ++a) {
        EXPECT_NEAR(now().sliding_velocity[5][a] / now().sliding_velocity[0][a],
                    now().speed_rpm[5] / now().speed_rpm[0], 1e-12);
    }
}

/// A slower second run must not keep the maximum of the first.
TEST_F(sliding_velocity_test, starts_its_maximum_anew_in_every_run) {
    const double fast = now().sliding_max[5];
    sample.perf_inputs.speed_hi = sample.perf_inputs.speed_lo * 1.5;
    calculate();
    EXPECT_LT(now().sliding_max[5], fast);
    EXPECT_EQ(now().sliding_max[5], *std::max_element(now().sliding_velocity[5].begin(),
                                                      now().sliding_velocity[5].end()));
}

}  // namespace
}  // namespace kvt
