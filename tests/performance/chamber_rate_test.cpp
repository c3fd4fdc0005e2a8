// How fast a chamber changes its volume.
#include "performance/chamber_rate.hpp"

#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class chamber_rate_test : public testing::TestWithParam<const char*> {
  protected:
    chamber_rate_test() {
        set_chamber_rate(sample.design_params, sample.rotor_profiles, sample.perf_results);
    }
    const perf_results& now() const { return sample.perf_results; }
    performance_case sample = load_performance_case(GetParam());
};

TEST_P(chamber_rate_test, fills_one_chamber_with_its_positive_steps) {
    const double chamber =
        sample.rotor_profiles.capacity_cc / 1e6 / (sample.design_params.numlobes - 1.0);
    double sum = 0.0;
    for (const double rate : now().chamber_rate) {
        sum += rate > 0.0 ? rate : 0.0;
    }
    EXPECT_NEAR(sum / chamber, 1.0, 0.002) << "the scaling is linear, the rates nearly so";
    EXPECT_DOUBLE_EQ(now().rate_sum, sum);
}

TEST_P(chamber_rate_test, grows_and_shrinks_by_the_same_volume) {
    double growing = 0.0;
    double shrinking = 0.0;
    for (const double rate : now().chamber_rate) {
        (rate > 0.0 ? growing : shrinking) += rate;
    }
    EXPECT_NEAR(growing / -shrinking, 1.0, 0.01);
}

TEST_P(chamber_rate_test, is_zero_beyond_a_turn) {
    for (std::size_t s = 3600; s < now().chamber_rate.size(); ++s) {
        ASSERT_EQ(now().chamber_rate[s], 0.0) << s;
    }
}

/// ratio is radouter over trochoid_r, although the arms of the lobes would ask for lengths of the
/// trochoid.
TEST_P(chamber_rate_test, has_the_lobe_radius_in_its_ratio) {
    const design_params& design = sample.design_params;
    EXPECT_EQ(now().ratio, design.radouter / sample.rotor_profiles.trochoid_r);
    EXPECT_DOUBLE_EQ(now().width_ecc, design.ecc * design.thick / 1e6 / now().ratio);
    EXPECT_DOUBLE_EQ(now().ecc_n, design.ecc * design.numlobes / 1000.0);
}

INSTANTIATE_TEST_SUITE_P(samples, chamber_rate_test, testing::ValuesIn(SAMPLES),
                         [](const auto& name) { return std::string(name.param); });

TEST(chamber_rate, fails_without_eccentricity_or_lobe_radius) {
    performance_case sample = load_performance_case("n04_fuel");
    sample.design_params.ecc = 0.0;
    EXPECT_FAILURE(
        set_chamber_rate(sample.design_params, sample.rotor_profiles, sample.perf_results),
        failure::division_by_zero);
    sample.design_params.ecc = 2.0;
    sample.design_params.radouter = 0.0;
    EXPECT_FAILURE(
        set_chamber_rate(sample.design_params, sample.rotor_profiles, sample.perf_results),
        failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
