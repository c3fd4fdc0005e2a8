// workbook_plan: the workbook of the performance as data: which text and number stands in which
// cell of which sheet, and which cells each chart draws. Whoever makes a workbook prints this plan.
// Source: docs/file-formats.md, "Workbook (`.xlsx`)".
#pragma once

#include "output/data/data_tables.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Rows and columns count from 1; column 1 is A.
struct sheet_text {
    int row, column;
    std::string text;
};

/// Numbers from column A on, row below row.
struct sheet_numbers {
    int first_row;
    int column_count;
    std::vector<double> values;  ///< row by row
};

/// Cells of one column.
struct cell_range {
    int first_row, last_row, column;

    friend bool operator==(const cell_range&, const cell_range&) = default;
};

/// "B4:B9"
std::string range_text(const cell_range& range);

struct workbook_series {
    std::string name;
    cell_range x, y;
};

/// Points of 1/72 inch from the upper left corner of the sheet.
struct chart_place {
    double left, top, width, height;
};

/// Scattered points joined by smooth lines, without markers.
struct workbook_chart {
    std::string title;  ///< empty: the chart has none
    std::string x_title, y_title;
    std::vector<workbook_series> series;
    chart_place place;
};

struct workbook_sheet {
    std::string name;
    std::vector<sheet_text> texts;
    std::vector<sheet_numbers> numbers;
    std::vector<workbook_chart> charts;
};

/// The five sheets in their order.
std::vector<workbook_sheet> make_workbook_plan(const file_source& source);

}  // namespace kvt
