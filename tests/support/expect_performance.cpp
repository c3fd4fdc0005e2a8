#include "support/expect_performance.hpp"

#include "base/checked_math.hpp"

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
    for (const result_quantity& quantity : result_quantities()) {
        const std::string name(quantity.name);
        if (quantity.json == json_part::none || !expected.contains(name)) {
            continue;
        }
        const std::vector<double> numbers = numbers_of(quantity, results);
        const nlohmann::json references = nlohmann::json::array({expected[name]}).flatten();
        EXPECT_EQ(numbers.size(), references.size()) << name;
        std::size_t n = 0;
        for (const nlohmann::json& reference : references) {
            expect_close(numbers.at(n), reference, name + " " + std::to_string(n));
            ++n;
        }
        ++compared;
    }
    return compared;
}

/// Elements 0, 25, 50 ...
void expect_every_25th(const perf_array& values, const nlohmann::json& expected,
                       const std::string& name) {
    ASSERT_FALSE(expected.empty()) << name;
    for (std::size_t n = 0; n < expected.size(); ++n) {
        expect_close(checked_at(values, static_cast<int>(n * 25)), expected[n],
                     name + " " + std::to_string(n * 25));
    }
}

}  // namespace

std::vector<double> numbers_of(const result_quantity& quantity, const perf_results& results) {
    if (is_grid(quantity)) {
        std::vector<double> numbers;
        for (const perf_list& row : grid_of(quantity, results)) {
            numbers.insert(numbers.end(), row.begin(), row.end());
        }
        return numbers;
    }
    if (const auto* value = std::get_if<result_value>(&quantity.source)) {
        return {results.*(*value)};
    }
    const auto* speeds = std::get_if<speed_list>(&quantity.source);
    const auto* pressures = std::get_if<pressure_list>(&quantity.source);
    if (speeds == nullptr && pressures == nullptr) {
        return {};
    }
    const perf_list& list = results.*(speeds != nullptr ? speeds->member : pressures->member);
    return {list.begin(), list.end()};
}

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
