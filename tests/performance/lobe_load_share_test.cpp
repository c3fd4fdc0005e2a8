// How the lobes share the drive torque.
#include "base/checked_math.hpp"
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class lobe_load_share_test : public testing::TestWithParam<const char*> {
  protected:
    lobe_load_share_test() { sample.run(); }
    const perf_results& now() const { return sample.perf_results; }
    performance_case sample = load_performance_case(GetParam());
};

/// Each force is proportional to arm^1.11, so the force of lobe k follows from that of lobe 1.
TEST_P(lobe_load_share_test, balances_the_drive_torque) {
    for (std::size_t a = 1; a <= 179; ++a) {
        double torque = 0.0;
        for (std::int32_t k = 1; k <= sample.design_params.numlobes; ++k) {
            const double arm = now().lobe_arm[static_cast<std::size_t>(k)][a];
            torque +=
                arm * now().contact_force[5][5][a] * std::pow(arm / now().lobe_arm[1][a], 1.11);
        }
        EXPECT_NEAR(torque / (now().drive_torque[5][5] * 1000.0), 1.0, 1e-11) << a;
    }
}

/// The lobes on the far side of the line of centres carry as much as those on the near side.
TEST_P(lobe_load_share_test, lets_every_lobe_carry_load) {
    for (std::int32_t k = 1; k <= sample.design_params.numlobes; ++k) {
        for (std::size_t a = 1; a <= 179; ++a) {
            EXPECT_GE(now().lobe_arm[static_cast<std::size_t>(k)][a], 0.0) << k << " " << a;
            EXPECT_LE(now().lobe_angle[static_cast<std::size_t>(k)][a], 3.1415927) << k << " " << a;
        }
    }
    const auto last = static_cast<std::size_t>(sample.design_params.numlobes);
    EXPECT_GT(now().lobe_arm[last][170], 0.0)
        << "lobe N at 170 degrees stands beyond the line of centres";
}

/// By the plain loops, in the order pressure, speed, angle.
TEST_P(lobe_load_share_test, gives_the_same_digits_as_the_plain_loops) {
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t a = 1; a <= 179; ++a) {
                double sum = 0.0;
                for (std::size_t k = 1;
                     k <= static_cast<std::size_t>(sample.design_params.numlobes); ++k) {
                    sum = sum + std::pow(now().lobe_arm[k][a], 2.11);
                }
                const double force = std::pow(now().lobe_arm[1][a], 1.11) *
                                     (now().drive_torque[i][j] * 1000.0) / sum;
                ASSERT_EQ(now().contact_force[i][j][a], force) << i << " " << j << " " << a;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(samples, lobe_load_share_test, testing::ValuesIn(SAMPLES),
                         [](const auto& name) { return std::string(name.param); });

/// Where lobe, eccentricity and trochoid stand in one line c is 1 or -1, at which the arc cosine
/// form divides by 0: N = 4 and a = 90 put lobe 2 at 180 degrees.
TEST(lobe_load_share, keeps_off_the_ends_of_the_arc_cosine) {
    performance_case sample = load_performance_case("n04_fuel");
    sample.run();
    EXPECT_NEAR(sample.perf_results.lobe_angle[2][90], 3.1415927 - std::acos(0.9999), 1e-12);
    EXPECT_NEAR(sample.perf_results.lobe_angle[4][90], 3.1415927 - std::acos(-0.9999), 1e-12)
        << "at 360 degrees";
}

TEST(lobe_load_share, fails_above_100_lobes) {
    performance_case sample = load_performance_case("n04_fuel");
    sample.prepare();
    sample.design_params.numlobes = 101;
    EXPECT_FAILURE(
        calc_lobe_load_share(sample.design_params, sample.rotor_profiles, sample.perf_results),
        failure::subscript_out_of_range);
}

TEST(lobe_load_share, fails_without_eccentricity) {
    performance_case sample = load_performance_case("n04_fuel");
    sample.prepare();
    sample.design_params.ecc = 0.0;
    EXPECT_FAILURE(
        calc_lobe_load_share(sample.design_params, sample.rotor_profiles, sample.perf_results),
        failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
