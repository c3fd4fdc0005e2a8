// result_tables: the results of a run as tables to read and to copy, in a language and in a system
// of units: one a quantity over the grid of speeds and pressures, and one over the rotation of the
// inner rotor. Factors: docs/formulas/flow.md, "Results as they are shown".
#pragma once

#include "core/length_unit.hpp"
#include "performance/perf_results.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

struct result_table {
    std::string name;                       ///< "Flow (lit/min)"
    std::string row_caption;                ///< what the rows stand for: "Pump Speed (rpm)"
    std::string column_caption;             ///< what the columns stand for; empty over the angle
    std::vector<std::string> row_heads;     ///< "1600", or the angle in degrees
    std::vector<std::string> column_heads;  ///< a pressure, or a quantity with its unit
    std::vector<std::vector<std::optional<double>>> cells;  ///< [row][column]; empty: not computed

    friend bool operator==(const result_table&, const result_table&) = default;
};

/// Flow, torque, power and the three efficiencies: a row a speed, a column a pressure, 0 .. 5 each.
std::vector<result_table> grid_tables(const perf_results& results, std::int16_t language,
                                      unit_system system);

/// Rate of a chamber and outlet pressure (0 .. 359 degrees, at the lowest speed and pressure),
/// sliding velocity (1 .. 360) at a speed, contact force and stress (1 .. 179) at a speed and a
/// pressure, indexes 0 .. 5: a row a degree, 0 .. 360.
result_table angle_table(const perf_results& results, std::size_t speed, std::size_t pressure,
                         std::int16_t language, unit_system system);

/// A table without its numbers, as it stands before the first run.
result_table without_numbers(result_table table);

/// Six significant digits with the decimal mark; "" for an empty cell.
std::string cell_text(const std::optional<double>& cell, char decimal_mark);

/// All its digits (number_text) with the decimal mark.
std::string whole_cell_text(double value, char decimal_mark);

/// Rows and columns of a table, first .. last, all below its size.
struct table_range {
    std::size_t first_row = 0, last_row = 0, first_column = 0, last_column = 0;
};

/// The cells of a range with the heads of their rows and columns, a line a row, parted by tabs, all
/// digits of the numbers (number_text), for a spreadsheet program.
std::string copied_cells(const result_table& table, const table_range& range, char decimal_mark);

}  // namespace kvt
