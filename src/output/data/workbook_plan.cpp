#include "output/data/workbook_plan.hpp"

#include "base/number_text.hpp"

#include <array>
#include <cstddef>

namespace kvt {

namespace {

/// Rows of the sheet: of a block's heading, 0 where it has none, and of its headers. The numbers
/// begin below.
struct block_rows {
    int heading, headers;
};

/// The lines of a chart: where the first begins, counted from the block's first row, how many rows
/// each has, how many there are; the column that names a line and the unit behind it.
struct chart_lines {
    std::size_t first_row, length, count;
    std::size_t name_column;
    std::string_view unit;
};

constexpr std::size_t CONTACT_ANGLES = CONTACT_ANGLE_LAST + 1;
constexpr chart_lines SPEEDS = {0, GRID_SIZE, GRID_SIZE, 0, "speed_unit"};
/// Of the highest speed.
constexpr chart_lines PRESSURES = {(GRID_SIZE - 1) * GRID_SIZE * CONTACT_ANGLES, CONTACT_ANGLES,
                                   GRID_SIZE, 1, "pressure_unit"};
constexpr chart_lines ONE_TURN = {0, 360, 1, 0, "speed_unit"};

/// Columns count from 0.
struct chart_row {
    std::size_t block, x, y;
    const chart_lines* lines;
};

struct sheet_row {
    data_file file;
    std::string_view name;  ///< row of the texts
    std::array<block_rows, 2> blocks;
    double chart_left;
    std::size_t chart_count;
    std::array<chart_row, 2> charts;
};

constexpr chart_row FLOW = {0, 1, 2, &SPEEDS};
constexpr chart_row TORQUE = {0, 1, 2, &SPEEDS};
constexpr chart_row POWER = {0, 1, 3, &SPEEDS};
constexpr chart_row STRESS = {1, 2, 4, &PRESSURES};
constexpr chart_row RIPPLE = {0, 0, 2, &ONE_TURN};
constexpr chart_row VOLUMETRIC = {0, 1, 2, &SPEEDS};
constexpr chart_row OVERALL = {0, 1, 4, &SPEEDS};

// Kept: the mechanical efficiency has no chart; workbook_plan_test holds it.
constexpr sheet_row SHEETS[] = {
    {data_file::flow, "flow_sheet", {{{0, 3}}}, 330.0, 1, {FLOW}},
    {data_file::torque, "torque_sheet", {{{0, 3}}}, 330.0, 2, {TORQUE, POWER}},
    {data_file::contact, "contact_sheet", {{{2, 3}, {2171, 2173}}}, 420.0, 1, {STRESS}},
    {data_file::volumetric, "volumetric_sheet", {{{0, 4}}}, 420.0, 1, {RIPPLE}},
    {data_file::efficiency, "efficiency_sheet", {{{0, 3}}}, 420.0, 2, {VOLUMETRIC, OVERALL}},
};

/// The tops of the charts of a sheet.
constexpr std::array<double, 2> CHART_TOPS = {40.0, 360.0};
constexpr double CHART_WIDTH = 480.0;
constexpr double CHART_HEIGHT = 300.0;

std::string without_blank(const std::string& header) {
    return header.starts_with(' ') ? header.substr(1) : header;
}

/// The sheet's column of a column that counts from 0.
int sheet_column(std::size_t column) {
    return static_cast<int>(column) + 1;
}

cell_range range_of(int first_row, std::size_t row_count, std::size_t column) {
    return {first_row, first_row + static_cast<int>(row_count) - 1, sheet_column(column)};
}

/// Fills one sheet from its row and its table.
class sheet_maker {
  public:
    sheet_maker(const sheet_row& row, const file_source& source)
        : row_(row), source_(source), table_(make_data_table(row.file, source)) {}

    workbook_sheet run() {
        sheet_.name = text(row_.name);
        add_head();
        for (std::size_t i = 0; i < table_.blocks.size(); ++i) {
            add_block(table_.blocks[i], row_.blocks[i]);
        }
        for (std::size_t i = 0; i < row_.chart_count; ++i) {
            add_chart(row_.charts[i], CHART_TOPS[i]);
        }
        return std::move(sheet_);
    }

  private:
    std::string text(std::string_view row) const { return std::string(data_text(row, source_)); }

    void add_head() {
        sheet_.texts.push_back(
            {1, 1, text("workbook_version") + source_.version + ": " + table_.title});
        if (!table_.ripple_caption.empty()) {
            sheet_.texts.push_back({2, 1, table_.ripple_caption + ripple_percent()});
        }
    }

    void add_block(const data_block& block, const block_rows& rows) {
        if (!block.heading.empty()) {
            sheet_.texts.push_back({rows.heading, 1, block.heading});
        }
        for (std::size_t i = 0; i < block.headers.size(); ++i) {
            sheet_.texts.push_back(
                {rows.headers, sheet_column(i), without_blank(block.headers[i])});
        }
        sheet_.numbers.push_back(
            {rows.headers + 1, sheet_column(block.headers.size() - 1), block.values});
    }

    void add_chart(const chart_row& row, double top) {
        const data_block& block = table_.blocks[row.block];
        workbook_chart chart{.title = row.lines == &ONE_TURN ? ripple_title() : "",
                             .x_title = without_blank(block.headers[row.x]),
                             .y_title = without_blank(block.headers[row.y]),
                             .series = {},
                             .place = {row_.chart_left, top, CHART_WIDTH, CHART_HEIGHT}};
        for (std::size_t line = 0; line < row.lines->count; ++line) {
            chart.series.push_back(series(row, line));
        }
        sheet_.charts.push_back(std::move(chart));
    }

    /// The first speed, pressure, or the speed of the ripple names a line.
    workbook_series series(const chart_row& row, std::size_t line) const {
        const chart_lines& lines = *row.lines;
        const std::size_t first = lines.first_row + line * lines.length;
        const int sheet_first = row_.blocks[row.block].headers + 1 + static_cast<int>(first);
        const double named = row.lines == &ONE_TURN
                                 ? ripple_speed()
                                 : table_.blocks[row.block].row(first)[lines.name_column];
        return {number_text(named) + text(lines.unit), range_of(sheet_first, lines.length, row.x),
                range_of(sheet_first, lines.length, row.y)};
    }

    /// The ripple is that of the lowest speed.
    double ripple_speed() const { return source_.results.speed_rpm.front(); }
    std::string ripple_percent() const { return number_text(table_.ripple_percent) + "%"; }
    std::string ripple_title() const {
        return text("ripple_chart") + number_text(ripple_speed()) + text("ripple_chart_percent") +
               ripple_percent();
    }

    const sheet_row& row_;
    const file_source& source_;
    data_table table_;
    workbook_sheet sheet_;
};

}  // namespace

std::string range_text(const cell_range& range) {
    const std::string column(1, static_cast<char>('A' + range.column - 1));
    return column + number_text(range.first_row) + ":" + column + number_text(range.last_row);
}

std::vector<workbook_sheet> make_workbook_plan(const file_source& source) {
    std::vector<workbook_sheet> sheets;
    for (const sheet_row& row : SHEETS) {
        sheets.push_back(sheet_maker(row, source).run());
    }
    return sheets;
}

}  // namespace kvt
