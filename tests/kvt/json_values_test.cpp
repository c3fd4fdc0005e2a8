// Tests of the JSON of result sections: the shape of tables and arrays.
#include "kvt/json_values.hpp"

#include "app/results/result_sections.hpp"
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

json performance_of_engine_oil(const std::vector<std::string>& options) {
    return calc_engine_oil(options).report()["perf_results"];
}

TEST(json_values, gives_tables_as_speed_by_pressure) {
    perf_results results;
    results.flow_m3s[2][5] = 0.125;
    const json object = json_of_values(performance_values(results), false);
    EXPECT_EQ(object["flow_m3s"].size(), GRID_SIZE);
    EXPECT_EQ(object["flow_m3s"][2].size(), GRID_SIZE);
    EXPECT_EQ(object["flow_m3s"][2][5], 0.125);
}

TEST(json_values, gives_the_axes_in_any_case_and_other_lists_in_the_full_form) {
    const json brief = performance_of_engine_oil({});
    EXPECT_EQ(brief["press_pa"].size(), GRID_SIZE);
    EXPECT_EQ(brief["speed_rpm"].size(), GRID_SIZE);
    EXPECT_FALSE(brief.contains("leak_tip"));
    EXPECT_FALSE(brief.contains("hertz_stress"));
    EXPECT_FALSE(brief.contains("ripple_pressure"));
    EXPECT_EQ(performance_of_engine_oil({"--full"})["leak_tip"].size(), GRID_SIZE);
}

TEST(json_values, cuts_the_arrays_over_the_angle_to_what_is_computed) {
    const json full = performance_of_engine_oil({"--full"});
    EXPECT_EQ(full["sliding_velocity"][5].size(), 361U);
    EXPECT_EQ(full["contact_force"][5][5].size(), 180U);
    EXPECT_EQ(full["hertz_stress"][0][0].size(), 180U);
    EXPECT_EQ(full["chamber_rate"].size(), 3600U);
    EXPECT_EQ(full["ripple_pressure"].size(), 3600U);
    EXPECT_GT(full["contact_force"][5][5][90], 0.0);
}

TEST(json_values, gives_extremes_that_agree_with_the_tables) {
    const json results = performance_of_engine_oil({});
    double largest = 0.0;
    for (const json& speed : results["flow_m3s"]) {
        for (const json& flow : speed) {
            largest = std::max(largest, flow.get<double>());
        }
    }
    EXPECT_EQ(results["flow_max"], largest);
}

}  // namespace
}  // namespace kvt
