#include "output/data/workbook_file.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/scratch_folder.hpp"
#include "base/whole_file.hpp"

#include <memory>
#include <xlsxwriter.h>

namespace kvt {

namespace {

/// The library places charts by pixels, 96 an inch, and by the size of a chart as it makes it.
constexpr double PIXELS_A_POINT = 96.0 / 72.0;
constexpr double OWN_CHART_WIDTH = 480.0;
constexpr double OWN_CHART_HEIGHT = 288.0;

void require(lxw_error error, const std::string& what) {
    if (error != LXW_NO_ERROR) {
        throw run_time_error(failure::path_file_access, what + ": " + lxw_strerror(error));
    }
}

// Rows and columns of the library count from 0.

lxw_row_t lib_row(int row) {
    return static_cast<lxw_row_t>(row - 1);
}

lxw_col_t lib_column(int column) {
    return static_cast<lxw_col_t>(column - 1);
}

void write_texts(lxw_worksheet* sheet, const workbook_sheet& plan) {
    for (const sheet_text& cell : plan.texts) {
        require(worksheet_write_string(sheet, lib_row(cell.row), lib_column(cell.column),
                                       cell.text.c_str(), nullptr),
                plan.name);
    }
}

void write_numbers(lxw_worksheet* sheet, const sheet_numbers& block, const std::string& name) {
    lxw_row_t row = lib_row(block.first_row);
    lxw_col_t column = 0;
    for (const double value : block.values) {
        require(worksheet_write_number(sheet, row, column, value, nullptr), name);
        if (++column == static_cast<lxw_col_t>(block.column_count)) {
            column = 0;
            ++row;
        }
    }
}

/// "='Drive Power'!$B$4:$B$9"
void set_range(void set(lxw_chart_series*, const char*, lxw_row_t, lxw_col_t, lxw_row_t, lxw_col_t),
               lxw_chart_series* series, const std::string& sheet, const cell_range& range) {
    set(series, sheet.c_str(), lib_row(range.first_row), lib_column(range.column),
        lib_row(range.last_row), lib_column(range.column));
}

void add_series(lxw_chart* chart, const workbook_series& plan, const std::string& sheet) {
    lxw_chart_series* series = chart_add_series(chart, nullptr, nullptr);
    set_range(chart_series_set_categories, series, sheet, plan.x);
    set_range(chart_series_set_values, series, sheet, plan.y);
    chart_series_set_name(series, plan.name.c_str());
}

void set_titles(lxw_chart* chart, const workbook_chart& plan) {
    chart_axis_set_name(chart->x_axis, plan.x_title.c_str());
    chart_axis_set_name(chart->y_axis, plan.y_title.c_str());
    if (plan.title.empty()) {
        // A chart of one line would otherwise get a title of its own.
        chart_title_off(chart);
    } else {
        chart_title_set_name(chart, plan.title.c_str());
    }
}

lxw_chart_options place_of(const workbook_chart& plan) {
    lxw_chart_options options = {};
    options.x_offset = static_cast<std::int32_t>(plan.place.left * PIXELS_A_POINT);
    options.y_offset = static_cast<std::int32_t>(plan.place.top * PIXELS_A_POINT);
    options.x_scale = plan.place.width * PIXELS_A_POINT / OWN_CHART_WIDTH;
    options.y_scale = plan.place.height * PIXELS_A_POINT / OWN_CHART_HEIGHT;
    return options;
}

void add_chart(lxw_workbook* book, lxw_worksheet* sheet, const workbook_chart& plan,
               const std::string& name) {
    lxw_chart* chart = workbook_add_chart(book, LXW_CHART_SCATTER_SMOOTH);
    for (const workbook_series& series : plan.series) {
        add_series(chart, series, name);
    }
    set_titles(chart, plan);
    lxw_chart_options options = place_of(plan);
    require(worksheet_insert_chart_opt(sheet, 0, 0, chart, &options), name);
}

void add_sheet(lxw_workbook* book, const workbook_sheet& plan) {
    lxw_worksheet* sheet = workbook_add_worksheet(book, plan.name.c_str());
    write_texts(sheet, plan);
    for (const sheet_numbers& block : plan.numbers) {
        write_numbers(sheet, block, plan.name);
    }
    for (const workbook_chart& chart : plan.charts) {
        add_chart(book, sheet, chart, plan.name);
    }
}

/// A workbook whose file and pieces lie in one folder.
class open_workbook {
  public:
    explicit open_workbook(const scratch_folder& folder)
        : folder_(utf8_of_path(folder.path())), path_(utf8_of_path(folder.path() / "book.xlsx")) {
        lxw_workbook_options options = {};
        options.tmpdir = folder_.data();
        book_.reset(workbook_new_opt(path_.c_str(), &options));
        if (!book_) {
            throw run_time_error(failure::path_file_access, path_);
        }
    }

    lxw_workbook* get() const { return book_.get(); }
    std::string close() {
        require(workbook_close(book_.release()), path_);
        return read_file(path_of_utf8(path_));
    }

  private:
    struct freed {
        void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
    };

    std::string folder_, path_;
    std::unique_ptr<lxw_workbook, freed> book_;
};

}  // namespace

bool has_workbook_files() {
    return true;
}

std::string workbook_bytes(std::span<const workbook_sheet> plan,
                           const std::function<void(int sheet_count)>& sheet_done) {
    const scratch_folder folder;
    open_workbook book(folder);
    int sheet_count = 0;
    for (const workbook_sheet& sheet : plan) {
        add_sheet(book.get(), sheet);
        if (sheet_done) {
            sheet_done(++sheet_count);
        }
    }
    return book.close();
}

}  // namespace kvt
