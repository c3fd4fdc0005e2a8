#include "output/data/workbook_calls.hpp"

#include "automation/answer.hpp"
#include "automation/automation_error.hpp"
#include "automation/connect.hpp"
#include "automation/object.hpp"
#include "base/number_text.hpp"

namespace kvt {

namespace {

using automation::object_of;
using automation::object_ref;

constexpr std::string_view EXCEL = "excel.application";

// Its own constants.
constexpr std::int32_t XL_XY_SCATTER_SMOOTH_NO_MARKERS = 73;
constexpr std::int32_t XL_COLUMNS = 2;
constexpr std::int32_t XL_CATEGORY = 1;
constexpr std::int32_t XL_VALUE = 2;

/// "A4": rows and columns count from 1.
std::string cell_text(int row, int column) {
    const std::string one_cell = range_text({row, row, column});
    return one_cell.substr(0, one_cell.find(':'));
}

/// "A4:C39"
std::string area_text(int first_row, int first_column, int last_row, int last_column) {
    return cell_text(first_row, first_column) + ":" + cell_text(last_row, last_column);
}

object_ref range(const object_ref& sheet, const std::string& area) {
    return object_of(sheet, "Range", {area});
}

void write_text(const object_ref& sheet, const sheet_text& text) {
    range(sheet, cell_text(text.row, text.column))->put("Value", text.text);
}

/// One call a block: a call a cell takes minutes.
void write_numbers(const object_ref& sheet, const sheet_numbers& block) {
    const auto columns = static_cast<std::size_t>(block.column_count);
    automation::table cells{block.values.size() / columns, columns, {}};
    cells.cells.assign(block.values.begin(), block.values.end());
    const int last_row = block.first_row + static_cast<int>(cells.rows) - 1;
    range(sheet, area_text(block.first_row, 1, last_row, block.column_count))
        ->put("Value", std::move(cells));
}

/// The columns of x and y side by side, or both by their own text: "B4:B9,D4:D9". A blank behind
/// the comma would ask for the cells that both have.
std::string source_text(const workbook_series& series) {
    if (series.x.column + 1 == series.y.column) {
        return area_text(series.x.first_row, series.x.column, series.y.last_row, series.y.column);
    }
    return range_text(series.x) + "," + range_text(series.y);
}

/// Replaces the series that the program takes from cells beside the active one.
void add_first_series(const object_ref& chart, const object_ref& sheet,
                      const workbook_series& plan) {
    chart->run("SetSourceData", {range(sheet, source_text(plan)), XL_COLUMNS});
    object_of(chart, "SeriesCollection", {1})->put("Name", plan.name);
}

void add_series(const object_ref& chart, const object_ref& sheet, const workbook_series& plan) {
    const object_ref series = object_of(object_of(chart, "SeriesCollection"), "NewSeries");
    series->put("Name", plan.name);
    series->put("XValues", range(sheet, range_text(plan.x)));
    series->put("Values", range(sheet, range_text(plan.y)));
}

void set_axis_title(const object_ref& chart, std::int32_t axis_type, const std::string& title) {
    const object_ref axis = object_of(chart, "Axes", {axis_type});
    axis->put("HasTitle", true);
    object_of(axis, "AxisTitle")->put("Caption", title);
}

void set_titles(const object_ref& chart, const workbook_chart& plan) {
    // A chart of one line would otherwise get a title of its own.
    chart->put("HasTitle", !plan.title.empty());
    if (!plan.title.empty()) {
        object_of(chart, "ChartTitle")->put("Caption", plan.title);
    }
    set_axis_title(chart, XL_CATEGORY, plan.x_title);
    set_axis_title(chart, XL_VALUE, plan.y_title);
}

void add_chart(const object_ref& sheet, const workbook_chart& plan) {
    const chart_place& place = plan.place;
    const object_ref frame = object_of(object_of(sheet, "ChartObjects"), "Add",
                                       {place.left, place.top, place.width, place.height});
    const object_ref chart = object_of(frame, "Chart");
    chart->put("ChartType", XL_XY_SCATTER_SMOOTH_NO_MARKERS);
    add_first_series(chart, sheet, plan.series.front());
    for (const workbook_series& series : std::span(plan.series).subspan(1)) {
        add_series(chart, sheet, series);
    }
    set_titles(chart, plan);
}

void fill_sheet(const object_ref& sheet, const workbook_sheet& plan) {
    sheet->put("Name", plan.name);
    sheet->run("Activate");
    for (const sheet_text& text : plan.texts) {
        write_text(sheet, text);
    }
    for (const sheet_numbers& block : plan.numbers) {
        write_numbers(sheet, block);
    }
    for (const workbook_chart& chart : plan.charts) {
        add_chart(sheet, chart);
    }
}

/// How many sheets a new workbook has is a setting of the user's.
object_ref sheets_of_new_workbook(const object_ref& excel, std::size_t count) {
    const object_ref book = object_of(object_of(excel, "Workbooks"), "Add");
    object_ref sheets = object_of(book, "Sheets");
    const auto there = static_cast<std::size_t>(automation::as_integer(sheets->get("Count")));
    for (std::size_t i = there; i < count; ++i) {
        sheets->run("Add");
    }
    return sheets;
}

void fill_sheets(const object_ref& sheets, std::span<const workbook_sheet> plan,
                 const std::function<void(int sheet_count)>& sheet_done) {
    std::int32_t number = 0;
    for (const workbook_sheet& sheet : plan) {
        fill_sheet(object_of(sheets, "Item", {++number}), sheet);
        if (sheet_done) {
            sheet_done(number);
        }
    }
}

/// A program that no longer answers needs it no more.
void show_screen_again(const object_ref& excel) {
    try {
        excel->put("ScreenUpdating", true);
    } catch (const automation::automation_error&) {
        return;
    }
}

}  // namespace

void fill_workbook(automation::host& programs, std::span<const workbook_sheet> plan,
                   const std::function<void(int sheet_count)>& sheet_done) {
    const object_ref excel = automation::connect(programs, EXCEL);
    excel->put("Visible", true);
    excel->put("ScreenUpdating", false);
    try {
        fill_sheets(sheets_of_new_workbook(excel, plan.size()), plan, sheet_done);
    } catch (const run_time_error&) {
        show_screen_again(excel);
        throw;
    }
    excel->put("ScreenUpdating", true);
}

}  // namespace kvt
