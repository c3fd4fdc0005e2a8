#include "support/expect_performance.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kvt {

namespace {

/// The references come from another program with its own order of sums and its own libm.
constexpr double RELATIVE_TOLERANCE = 1e-9;

void expect_close(double value, double expected, const std::string& where) {
    EXPECT_LE(std::abs(value - expected), RELATIVE_TOLERANCE * std::abs(expected))
        << where << ": " << value;
}

/// Number of references compared, so that a test can see that none was skipped.
int expect_scalars_and_grids(const perf_results& results, const nlohmann::json& expected) {
    int compared = 0;
    for (const auto& field : perf_values()) {
        const std::string name(field.name);
        if (expected.contains(name)) {
            expect_close(results.*field.member, expected[name], name);
            ++compared;
        }
    }
    for (const auto& field : perf_lists()) {
        const std::string name(field.name);
        for (std::size_t i = 0; expected.contains(name) && i < GRID_SIZE;
             ++i, compared += i == GRID_SIZE) {
            expect_close((results.*field.member)[i], expected[name][i],
                         name + " " + std::to_string(i));
        }
    }
    for (const auto& field : perf_grids()) {
        const std::string name(field.name);
        for (std::size_t i = 0; expected.contains(name) && i < GRID_SIZE;
             ++i, compared += i == GRID_SIZE) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                expect_close((results.*field.member)[i][j], expected[name][i][j],
                             name + " " + std::to_string(i) + "," + std::to_string(j));
            }
        }
    }
    return compared;
}

/// Elements 0, 25, 50 ...
void expect_every_25th(const perf_array& values, const nlohmann::json& expected,
                       const std::string& name) {
    ASSERT_FALSE(expected.empty()) << name;
    for (std::size_t n = 0; n < expected.size(); ++n) {
        ASSERT_LT(n * 25, values.size()) << name;
        expect_close(values[n * 25], expected[n], name + " " + std::to_string(n * 25));
    }
}

}  // namespace

void expect_performance(const perf_results& results, const nlohmann::json& reference) {
    const nlohmann::json& expected = reference["perf_results"];
    EXPECT_EQ(expect_scalars_and_grids(results, expected), static_cast<int>(expected.size()));
    const nlohmann::json& arrays = reference["every_25th"];
    ASSERT_EQ(arrays.size(), 5U);
    expect_every_25th(results.chamber_rate, arrays["chamber_rate"], "chamber_rate");
    expect_every_25th(results.ripple_pressure, arrays["ripple_pressure"], "ripple_pressure");
    expect_every_25th(results.sliding_velocity[0], arrays["sliding_velocity_0"],
                      "sliding_velocity");
    const std::size_t top = GRID_SIZE - 1;
    expect_every_25th(results.contact_force[0][0], arrays["contact_force_corners"]["0,0"],
                      "contact_force");
    expect_every_25th(results.contact_force[top][top], arrays["contact_force_corners"]["5,5"],
                      "contact_force");
    expect_every_25th(results.hertz_stress[0][0], arrays["hertz_stress_corners"]["0,0"],
                      "hertz_stress");
    expect_every_25th(results.hertz_stress[top][top], arrays["hertz_stress_corners"]["5,5"],
                      "hertz_stress");
}

}  // namespace kvt
