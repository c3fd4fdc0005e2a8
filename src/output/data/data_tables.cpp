#include "output/data/data_tables.hpp"

#include "core/text_table.hpp"
#include "performance/result_quantities.hpp"

#include <array>
#include <cassert>
#include <optional>

namespace kvt {

namespace {

/// A column: the result, by its name among the data, or the angle; and the row of the texts that
/// heads it.
struct column_row {
    std::string_view result;
    std::string_view header = result;
};

constexpr column_row SPEED = {"speed"};
constexpr column_row PRESSURE = {"pressure"};
/// No result: the degrees.
constexpr std::string_view ANGLE = "angle";
constexpr column_row ANGLES = {ANGLE};

/// Counts of speeds, pressures and angles that a block runs over, the last one fastest.
struct block_size {
    std::size_t speeds = 1, pressures = 1, angles = 1;
};

constexpr block_size GRID = {GRID_SIZE, GRID_SIZE, 1};
constexpr std::size_t WHOLE_TURN = ANGLE_ARRAY_LAST + 1;
constexpr std::size_t CONTACT_ANGLES = CONTACT_ANGLE_LAST + 1;
/// Rows of the volumetric file: the last angle of a turn is the first of the next.
constexpr std::size_t TURN_DEGREES = 360;

struct block_row {
    data_file file;
    std::string_view heading;  ///< row of the texts; empty without a heading
    block_size size;
    std::array<column_row, 5> columns;  ///< ends at the first without a name
};

constexpr block_row BLOCKS[] = {
    {data_file::flow, "", GRID, {SPEED, PRESSURE, column_row{"flow"}}},
    {data_file::torque, "", GRID, {SPEED, PRESSURE, column_row{"torque"}, column_row{"power"}}},
    {data_file::contact,
     "sliding_heading",
     {GRID_SIZE, 1, WHOLE_TURN},
     {SPEED, ANGLES, column_row{"sliding"}}},
    {data_file::contact,
     "stress_heading",
     {GRID_SIZE, GRID_SIZE, CONTACT_ANGLES},
     {SPEED, column_row{"pressure", "contact_pressure"}, ANGLES, column_row{"force"},
      column_row{"stress"}}},
    {data_file::efficiency,
     "",
     GRID,
     {SPEED, PRESSURE, column_row{"vol_eff"}, column_row{"mech_eff"}, column_row{"overall_eff"}}},
    {data_file::volumetric,
     "",
     {1, 1, TURN_DEGREES},
     {ANGLES, column_row{"rate"}, column_row{"ripple"}}},
};

/// The texts of a file are named after it: "flow_heading", "flow_end".
constexpr std::array<std::string_view, 5> FILE_WORDS = {"flow", "torque", "contact", "efficiency",
                                                        "volumetric"};

/// A column with its result found; nothing for the angle.
using data_column = std::optional<used_result>;

double shown_at(const data_column& column, const result_point& at, const file_source& source) {
    return column ? shown_value(value_at(*column->quantity, source.results, at), *column->use,
                                source.unit.system)
                  : static_cast<double>(at.degree);
}

void append_rows(const std::vector<data_column>& columns, const block_size& size,
                 const file_source& source, std::vector<double>& values) {
    values.reserve(size.speeds * size.pressures * size.angles * columns.size());
    for (std::size_t speed = 0; speed < size.speeds; ++speed) {
        for (std::size_t pressure = 0; pressure < size.pressures; ++pressure) {
            for (std::size_t degree = 0; degree < size.angles; ++degree) {
                for (const data_column& column : columns) {
                    values.push_back(shown_at(column, {speed, pressure, degree}, source));
                }
            }
        }
    }
}

data_block make_block(const block_row& row, const file_source& source) {
    data_block block;
    if (!row.heading.empty()) {
        block.heading = data_text(row.heading, source);
    }
    std::vector<data_column> columns;
    for (const column_row& column : row.columns) {
        if (!column.result.empty()) {
            block.headers.emplace_back(data_text(column.header, source));
            columns.push_back(result_named(result_place::data, column.result));
            assert(columns.back() || column.result == ANGLE);
        }
    }
    append_rows(columns, row.size, source, block.values);
    return block;
}

std::string text_of_file(data_file file, std::string_view end, const file_source& source) {
    const std::string_view word = FILE_WORDS[static_cast<std::size_t>(file)];
    return std::string(data_text(std::string(word) + std::string(end), source));
}

}  // namespace

std::string_view data_text(std::string_view row, const file_source& source) {
    return form_text("data", row, source.language, source.unit.system);
}

data_table make_data_table(data_file file, const file_source& source) {
    data_table table;
    table.title = text_of_file(file, "_heading", source) + std::string(source.project_name) + "'";
    if (file == data_file::volumetric) {
        table.ripple_caption = data_text("ripple_percent", source);
        table.ripple_percent = source.results.ripple_percent;
    }
    if (file == data_file::contact) {
        for (const char* remark : {"contact_remark_1", "contact_remark_2", "contact_remark_3"}) {
            table.remarks.emplace_back(data_text(remark, source));
        }
    }
    for (const block_row& row : BLOCKS) {
        if (row.file == file) {
            table.blocks.push_back(make_block(row, source));
        }
    }
    table.end = text_of_file(file, "_end", source);
    return table;
}

}  // namespace kvt
