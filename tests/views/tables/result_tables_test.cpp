// The tables of the results against the records, and the text that is copied out of them.
#include "views/tables/result_tables.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using enum unit_system;

/// Speeds 500, 700 ..., pressures 1, 2 ... bar, and numbers that tell their place.
perf_results numbered_results() {
    perf_results results;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const auto step = static_cast<double>(i);
        results.speed_rpm[i] = 500.0 + 200.0 * step;
        results.press_pa[i] = 101300.0 * (1.0 + step);
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            results.flow_m3s[i][j] = (10.0 * step + static_cast<double>(j)) / 60000.0;
            results.mech_eff[i][j] = 0.5;
        }
    }
    results.chamber_rate[3590] = 0.25;
    results.ripple_pressure[10] = 202600.0;
    results.sliding_velocity[2][360] = 1500.0;
    results.contact_force[2][4][179] = 98.1;
    results.hertz_stress[2][4][1] = 100.0;
    return results;
}

TEST(grid_tables, show_six_quantities_a_row_a_speed_and_a_column_a_pressure) {
    const std::vector<result_table> tables = grid_tables(numbered_results(), 1, metric);
    std::vector<std::string> names;
    for (const result_table& table : tables) {
        names.push_back(table.name);
        EXPECT_EQ(table.row_caption, "Pump Speed (rpm)");
        EXPECT_EQ(table.column_caption, "Pump Delivery Pressure (Pa)");
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"Flow (lit/min)", "Torque to Turn (Nm)",
                                        "Power to Turn (W)", "Volumetric Efficiency (%)",
                                        "Mechanical Efficiency (%)", "Overall Efficiency (%)"}));
    const result_table& flow = tables.front();
    EXPECT_EQ(flow.row_heads,
              (std::vector<std::string>{"500", "700", "900", "1100", "1300", "1500"}));
    EXPECT_EQ(flow.column_heads, (std::vector<std::string>{"101300", "202600", "303900", "405200",
                                                           "506500", "607800"}));
    EXPECT_EQ(flow.cells[4][3], 43.0 / 60000.0 * 60000.0);
    EXPECT_EQ(tables[4].cells[0][0], 50.0);
}

TEST(grid_tables, follow_the_language_and_the_units) {
    const std::vector<result_table> tables = grid_tables(numbered_results(), 2, imperial);
    EXPECT_EQ(tables[0].name, "Ablauf (USGall/min)");
    EXPECT_EQ(tables[0].column_caption, "Pumpenlieferungsdruck (psi)");
    EXPECT_EQ(tables[0].column_heads[1], "29");
    EXPECT_EQ(tables[0].cells[1][0], 10.0 / 60000.0 * 60000.0 * 0.26417);
}

TEST(angle_table, has_a_row_a_degree_and_nothing_where_nothing_is_computed) {
    const result_table table = angle_table(numbered_results(), 2, 4, 1, metric);
    ASSERT_EQ(table.row_heads.size(), 361U);
    EXPECT_EQ(table.row_heads[360], "360");
    EXPECT_EQ(table.column_heads,
              (std::vector<std::string>{"Volumetric Rate of Change (litres/degree)",
                                        "Pressure Ripple (bar)", "Sliding Velocity (m/s)",
                                        "Contact Force (N)", "Hertzian Stress (MPa)"}));
    EXPECT_EQ(table.cells[359][0], 2500.0);
    EXPECT_EQ(table.cells[1][1], 2.0);
    EXPECT_EQ(table.cells[360][2], 1.5);
    EXPECT_EQ(table.cells[179][3], 98.1);
    EXPECT_EQ(table.cells[1][4], 100.0);
    EXPECT_FALSE(table.cells[360][0] || table.cells[360][1]);
    EXPECT_FALSE(table.cells[0][2] || table.cells[0][3] || table.cells[180][4]);
    EXPECT_EQ(angle_table(numbered_results(), 2, 3, 1, metric).cells[179][3], 0.0);
}

TEST(result_tables, stand_without_numbers_when_there_was_no_run) {
    const result_table table = without_numbers(grid_tables(numbered_results(), 1, metric)[0]);
    EXPECT_EQ(table.cells[4][3], std::nullopt);
    EXPECT_EQ(table.name, "Flow (lit/min)");
}

TEST(cell_text, has_six_digits_and_the_decimal_mark) {
    EXPECT_EQ(cell_text(1234.56789, '.'), "1234.57");
    EXPECT_EQ(cell_text(0.00012345678, ','), "0,000123457");
    EXPECT_EQ(cell_text(-98765432.1, '.'), "-98765400");
    EXPECT_EQ(cell_text(0.0, '.'), "0");
    EXPECT_EQ(cell_text(0.99999999, '.'), "1");
    EXPECT_EQ(cell_text(std::nullopt, '.'), "");
}

/// Two rows of two columns, worked out by hand: flow is 10 i + j.
TEST(copied_cells, have_their_heads_and_all_their_digits) {
    const std::vector<result_table> tables = grid_tables(numbered_results(), 1, imperial);
    EXPECT_EQ(copied_cells(tables[4], {1, 2, 0, 1}, ','),
              "Pump Speed (rpm) / Pump Delivery Pressure (psi)\t14,5\t29\n"
              "700\t50\t50\n"
              "900\t50\t50\n");
    const result_table angles = angle_table(numbered_results(), 2, 4, 1, metric);
    EXPECT_EQ(
        copied_cells(angles, {179, 180, 3, 4}, '.'),
        "Pump Inner Rotor Rotation Angle (degrees)\tContact Force (N)\tHertzian Stress (MPa)\n"
        "179\t98.1\t0\n"
        "180\t\t\n");
}

}  // namespace
}  // namespace kvt
