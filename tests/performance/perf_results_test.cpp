// The five sample designs: all of perf_results against reference values.
#include "support/expect_performance.hpp"
#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class perf_results_test : public testing::TestWithParam<const char*> {};

TEST_P(perf_results_test, give_the_reference_values) {
    performance_case sample = load_performance_case(GetParam());
    sample.run();
    expect_performance(sample.perf_results, *sample.expected);
}

TEST_P(perf_results_test, are_the_same_in_a_second_run) {
    performance_case sample = load_performance_case(GetParam());
    sample.run();
    const perf_results first = sample.perf_results;
    sample.run();
    for (const result_quantity& quantity : result_quantities()) {
        EXPECT_EQ(numbers_of(quantity, sample.perf_results), numbers_of(quantity, first))
            << quantity.name;
    }
    EXPECT_EQ(sample.perf_results.ripple_pressure, first.ripple_pressure);
    EXPECT_EQ(sample.perf_results.hertz_stress, first.hertz_stress);
}

INSTANTIATE_TEST_SUITE_P(samples, perf_results_test, testing::ValuesIn(SAMPLES),
                         [](const auto& name) { return std::string(name.param); });

TEST(perf_results, hold_arrays_of_the_stated_sizes) {
    const perf_results results;
    EXPECT_EQ(results.chamber_rate.size(), 72001U);
    EXPECT_EQ(results.ripple_sector.size(), 5001U);
    EXPECT_EQ(results.ripple_pressure.size(), 36001U);
    EXPECT_EQ(results.lobe_arm.size(), 101U);
    EXPECT_EQ(results.lobe_arm[1].size(), 361U);
    EXPECT_EQ(results.hertz_sliding[5][5].size(), 361U);
}

}  // namespace
}  // namespace kvt
