#include "views/tables/result_tables.hpp"

#include "base/decimal_mark.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "performance/result_quantities.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace kvt {

namespace {

constexpr int SHOWN_DIGITS = 6;

/// The caption of a column of the data files, without the blank that some begin with.
std::string heading_of(std::string_view name, std::int16_t language, unit_system system) {
    std::string_view text = form_text("data", name, language, system);
    text.remove_prefix(text.find_first_not_of(' '));
    return std::string(text);
}

std::vector<std::string> grid_heads(const perf_list& values, std::string_view name,
                                    unit_system system) {
    const result_use& use = *result_named(result_place::data, name)->use;
    std::vector<std::string> heads;
    for (const double value : values) {
        heads.push_back(number_text(shown_value(value, use, system)));
    }
    return heads;
}

result_table grid_table(const used_result& result, const perf_results& results,
                        std::int16_t language, unit_system system) {
    result_table table;
    table.name = heading_of(result.use->name, language, system);
    table.row_caption = heading_of("speed", language, system);
    table.column_caption = heading_of("pressure", language, system);
    table.row_heads = grid_heads(results.speed_rpm, "speed", system);
    table.column_heads = grid_heads(results.press_pa, "pressure", system);
    for (const perf_list& of_speed : grid_of(*result.quantity, results)) {
        std::vector<std::optional<double>>& row = table.cells.emplace_back();
        for (const double value : of_speed) {
            row.emplace_back(shown_value(value, *result.use, system));
        }
    }
    return table;
}

/// A column over the angle, by its name, and the degrees at which it is computed.
struct angle_column {
    std::string_view name;
    std::size_t first_degree, last_degree;
};

constexpr std::size_t LAST_DEGREE = ANGLE_ARRAY_LAST;
constexpr std::array ANGLE_COLUMNS = {
    angle_column{"rate", 0, LAST_DEGREE - 1}, angle_column{"ripple", 0, LAST_DEGREE - 1},
    angle_column{"sliding", 1, LAST_DEGREE}, angle_column{"force", 1, CONTACT_ANGLE_LAST},
    angle_column{"stress", 1, CONTACT_ANGLE_LAST}};

std::optional<double> shown_at(const angle_column& column, const used_result& result,
                               const perf_results& results, const result_point& at,
                               unit_system system) {
    if (at.degree < column.first_degree || at.degree > column.last_degree) {
        return std::nullopt;
    }
    return shown_value(value_at(*result.quantity, results, at), *result.use, system);
}

std::string rounded_to_shown_digits(double value) {
    if (value == 0.0) {
        return "0";
    }
    const double exponent = std::floor(std::log10(std::abs(value)));
    const double steps = std::pow(10.0, SHOWN_DIGITS - 1 - exponent);
    return number_text(std::nearbyint(value * steps) / steps);
}

}  // namespace

std::vector<result_table> grid_tables(const perf_results& results, std::int16_t language,
                                      unit_system system) {
    std::vector<result_table> tables;
    for (const used_result& result : results_at(result_place::data)) {
        if (is_grid(*result.quantity)) {
            tables.push_back(grid_table(result, results, language, system));
        }
    }
    return tables;
}

result_table angle_table(const perf_results& results, std::size_t speed, std::size_t pressure,
                         std::int16_t language, unit_system system) {
    result_table table;
    table.name = std::string(form_text("result_tables", "angle_tab", language));
    table.row_caption = heading_of("angle", language, system);
    table.cells.resize(LAST_DEGREE + 1);
    for (std::size_t degree = 0; degree <= LAST_DEGREE; ++degree) {
        table.row_heads.push_back(number_text(static_cast<double>(degree)));
    }
    for (const angle_column& column : ANGLE_COLUMNS) {
        const used_result result = *result_named(result_place::data, column.name);
        table.column_heads.push_back(heading_of(column.name, language, system));
        for (std::size_t degree = 0; degree <= LAST_DEGREE; ++degree) {
            table.cells[degree].push_back(
                shown_at(column, result, results, {speed, pressure, degree}, system));
        }
    }
    return table;
}

result_table without_numbers(result_table table) {
    for (std::vector<std::optional<double>>& row : table.cells) {
        std::ranges::fill(row, std::nullopt);
    }
    return table;
}

std::string cell_text(const std::optional<double>& cell, char decimal_mark) {
    return cell ? with_decimal_mark(rounded_to_shown_digits(*cell), decimal_mark) : "";
}

std::string whole_cell_text(double value, char decimal_mark) {
    return with_decimal_mark(number_text(value), decimal_mark);
}

std::string copied_cells(const result_table& table, const table_range& range, char decimal_mark) {
    std::string text = table.row_caption;
    if (!table.column_caption.empty()) {
        text += " / " + table.column_caption;
    }
    for (std::size_t column = range.first_column; column <= range.last_column; ++column) {
        text += '\t' + with_decimal_mark(table.column_heads[column], decimal_mark);
    }
    text += '\n';
    for (std::size_t row = range.first_row; row <= range.last_row; ++row) {
        text += with_decimal_mark(table.row_heads[row], decimal_mark);
        for (std::size_t column = range.first_column; column <= range.last_column; ++column) {
            const std::optional<double>& cell = table.cells[row][column];
            text += '\t' + (cell ? whole_cell_text(*cell, decimal_mark) : std::string());
        }
        text += '\n';
    }
    return text;
}

}  // namespace kvt
