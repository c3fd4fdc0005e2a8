// Tests of the table of the results: every field stands in it once, and each place of use keeps its
// order, its factors and its digits.
#include "performance/result_quantities.hpp"

#include "core/app_state.hpp"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

std::vector<std::string_view> names_at(result_place place) {
    std::vector<std::string_view> names;
    for (const used_result& result : results_at(place)) {
        names.push_back(result.use->name);
    }
    return names;
}

double shown(result_place place, std::string_view quantity, double value, unit_system system) {
    return shown_value(value, *result_at(place, quantity)->use, system);
}

std::string text(std::string_view quantity, double value, std::int16_t unit = MILLIMETRES) {
    return shown_text(value, *result_at(result_place::perf_res, quantity)->use,
                      length_unit_of(unit));
}

TEST(result_quantities, stand_once_in_the_table) {
    std::set<std::string_view> names;
    for (const result_quantity& quantity : result_quantities()) {
        EXPECT_TRUE(names.insert(quantity.name).second) << quantity.name;
    }
    EXPECT_EQ(names.size(), 64U + 21U + 11U + 11U + 4U + 5U)
        << "numbers, lists, grids, arrays over a turn, over speeds too, worked out";
}

TEST(result_quantities, hold_arrays_that_are_as_long_as_their_used_part) {
    const perf_results results;
    int arrays = 0;
    for (const result_quantity& quantity : result_quantities()) {
        if (const auto* array = std::get_if<angle_array>(&quantity.source)) {
            EXPECT_LE(array->used_count, (results.*array->member).size()) << quantity.name;
            ++arrays;
        }
    }
    EXPECT_EQ(arrays, 11);
}

TEST(result_quantities, stand_at_each_place_in_its_order) {
    using names = std::vector<std::string_view>;
    EXPECT_EQ(names_at(result_place::summary),
              (names{"grid_axes", "grid_axes", "flow", "vol_eff", "mech_eff", "overall_eff",
                     "drive_power", "hertz_stress", "side_load"}));
    EXPECT_EQ(names_at(result_place::perf_res),
              (names{"max_speed", "max_shaft_side_load", "side_load_direction", "max_cutter_inner",
                     "Label1"}));
    EXPECT_EQ(names_at(result_place::numbers),
              (names{"max_speed", "max_shaft_side_load", "side_load_direction", "max_cutter_inner",
                     "ripple_percent"}));
    EXPECT_EQ(names_at(result_place::chart), (names{"pressure", "speed", "flow", "power", "stress",
                                                    "ripple", "ve", "mech", "overall"}));
    EXPECT_EQ(names_at(result_place::data),
              (names{"speed", "pressure", "flow", "torque", "power", "vol_eff", "mech_eff",
                     "overall_eff", "rate", "ripple", "sliding", "force", "stress"}));
    EXPECT_FALSE(result_at(result_place::numbers, "flow_m3s"));
}

/// A litre a second is 60 litres and 15.850 US gallons a minute; 746 W are one horsepower.
TEST(result_quantities, have_the_units_of_the_summary_in_three_decimals) {
    const auto metric = [](std::string_view quantity, double value) {
        return shown(result_place::summary, quantity, value, unit_system::metric);
    };
    const auto imperial = [](std::string_view quantity, double value) {
        return shown(result_place::summary, quantity, value, unit_system::imperial);
    };
    EXPECT_EQ(metric("press_pa", 202600.0), 2.0);
    EXPECT_EQ(imperial("press_pa", 202600.0), 29.0);
    EXPECT_EQ(metric("speed_rpm", 1000.12345), 1000.123);
    EXPECT_EQ(metric("flow_m3s", 0.001), 60.0);
    EXPECT_EQ(imperial("flow_m3s", 0.001), 15.85);
    EXPECT_EQ(metric("vol_eff", 0.98765432), 98.765);
    EXPECT_EQ(imperial("vol_eff", 0.98765432), 98.765);
    EXPECT_EQ(metric("drive_power", 1492.0), 1.492);
    EXPECT_EQ(imperial("drive_power", 1492.0), 2.0);
    EXPECT_EQ(metric("largest_stress", 689.47), 689.47);
    EXPECT_EQ(imperial("largest_stress", 689.47), 100.0);
    EXPECT_EQ(metric("side_load", 98.1), 98.1);
    EXPECT_EQ(imperial("side_load", 98.1), 22.0);
}

/// Exact: the values are written with all their digits, so that the order of operations counts.
TEST(result_quantities, keep_the_order_of_operations_in_charts_and_data_files) {
    const double value = 0.123456789;
    const auto data = [&](std::string_view quantity, unit_system system) {
        return shown(result_place::data, quantity, value, system);
    };
    const auto chart = [&](std::string_view quantity, unit_system system) {
        return shown(result_place::chart, quantity, value, system);
    };
    using enum unit_system;
    EXPECT_EQ(data("press_pa", metric), value);
    EXPECT_EQ(data("press_pa", imperial), value * 14.5 / 101300.0);
    EXPECT_EQ(chart("press_pa", imperial), value / 101300.0 * 14.5);
    EXPECT_EQ(data("flow_m3s", imperial), value * 60000.0 * 0.26417);
    EXPECT_EQ(chart("flow_m3s", imperial), value * 60000.0 * 0.26417);
    EXPECT_EQ(data("drive_torque", imperial), value * 0.7376);
    EXPECT_EQ(data("drive_power", metric), value);
    EXPECT_EQ(chart("drive_power", metric), value / 1000.0);
    EXPECT_EQ(data("drive_power", imperial), value / 746.0);
    EXPECT_EQ(data("mech_eff", metric), value * 100.0);
    EXPECT_EQ(chart("mech_eff", imperial), value);
    EXPECT_EQ(data("chamber_rate", metric), value * 10000.0);
    EXPECT_EQ(data("chamber_rate", imperial), value * 10000.0 * 0.26417);
    EXPECT_EQ(data("ripple_pressure", imperial), value / 101300.0 * 14.5);
    EXPECT_EQ(data("sliding_velocity", metric), value / 1000.0);
    EXPECT_EQ(data("sliding_velocity", imperial), value / 304.8);
    EXPECT_EQ(data("contact_force", imperial), value * 2.2 / 9.81);
    EXPECT_EQ(data("hertz_stress", imperial), value * 0.14504);
    EXPECT_EQ(chart("hertz_stress", imperial), value * 145.04 / 1000.0);
    EXPECT_EQ(chart("hertz_stress", metric), value);
}

TEST(result_quantities, have_the_digits_of_the_result_form) {
    EXPECT_EQ(text("max_speed", 7403.99), " 7403 RPM");
    EXPECT_EQ(text("max_shaft_side_load", 98.129), "98.12 N");
    EXPECT_EQ(text("max_shaft_side_load", 98.129, INCHES), "22 lbsf");
    EXPECT_EQ(text("max_cutter_inner", -12.705), "25.41 mm");
    EXPECT_EQ(text("max_cutter_inner", -12.705, INCHES), "1 inches");
    EXPECT_EQ(text("ripple_percent", 0.5), " 0.5 %");
    EXPECT_EQ(result_at(result_place::perf_res, "ripple_percent")->use->lead_in,
              message::pressure_ripple);
}

/// A right angle reads as 45 degrees, less what the divisor is above a full turn.
TEST(result_quantities, give_half_of_the_load_angle) {
    EXPECT_EQ(text("side_load_direction", 1.5707963), "44.99 °");
    EXPECT_EQ(text("side_load_direction", -1.0), "-28.65 °");
    EXPECT_NEAR(shown(result_place::numbers, "side_load_direction", -1.0, unit_system::metric),
                -28.647889, 1e-6);
}

TEST(result_quantities, are_found_by_the_name_that_a_place_gives_them) {
    EXPECT_EQ(result_named(result_place::chart, "ve")->quantity->name, "vol_eff");
    EXPECT_EQ(result_named(result_place::data, "rate")->quantity->name, "chamber_rate");
    EXPECT_FALSE(result_named(result_place::data, "angle"));
    EXPECT_FALSE(result_named(result_place::chart, "vol_eff"));
}

/// Each kind of source once; its number stands at speed 2, pressure 3 and 17 degrees.
TEST(result_quantities, have_a_number_at_each_point) {
    perf_results results;
    results.dyn_visc = 1.0;
    results.cutter_r = -2.0;
    results.side_load[5][5] = 3.0;
    results.speed_rpm[2] = 4.0;
    results.press_pa[3] = 5.0;
    results.flow_m3s[2][3] = 6.0;
    results.hertz_stress[2][3][17] = 7.0;
    results.chamber_rate[170] = 8.0;
    results.equiv_r[17] = 9.0;
    results.sliding_velocity[2][17] = 10.0;
    const auto number = [&](std::string_view name) {
        const std::span<const result_quantity> all = result_quantities();
        const auto found = std::ranges::find(all, name, &result_quantity::name);
        return value_at(*found, results, {2, 3, 17});
    };
    EXPECT_EQ(number("dyn_visc"), 1.0);
    EXPECT_EQ(number("max_cutter_inner"), -2.0);
    EXPECT_EQ(number("max_shaft_side_load"), 3.0);
    EXPECT_EQ(number("speed_rpm"), 4.0);
    EXPECT_EQ(number("press_pa"), 5.0);
    EXPECT_EQ(number("flow_m3s"), 6.0);
    EXPECT_EQ(number("largest_stress"), 7.0);
    EXPECT_EQ(number("hertz_stress"), 7.0);
    EXPECT_EQ(number("chamber_rate"), 8.0);
    EXPECT_EQ(number("equiv_r"), 9.0);
    EXPECT_EQ(number("sliding_velocity"), 10.0);
}

TEST(result_quantities, take_load_and_stress_from_the_record) {
    perf_results results;
    results.side_load[5][5] = 3.0;
    results.side_load_angle[5][5] = 0.25;
    results.hertz_stress[2][3][17] = 450.0;
    results.hertz_stress[2][3][90] = 120.0;
    EXPECT_EQ(value_of(*result_at(result_place::numbers, "max_shaft_side_load")->quantity, results),
              3.0);
    EXPECT_EQ(value_of(*result_at(result_place::numbers, "side_load_direction")->quantity, results),
              0.25);
    const used_result stress = *result_at(result_place::summary, "largest_stress");
    ASSERT_TRUE(is_grid(*stress.quantity));
    EXPECT_EQ(grid_of(*stress.quantity, results)[2][3], 450.0);
    EXPECT_EQ(grid_of(*stress.quantity, results)[3][2], 0.0);
}

}  // namespace
}  // namespace kvt
