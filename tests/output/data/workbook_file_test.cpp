// The workbook through an independent reader: every cell is the number of the data file, every
// chart draws the cells that it should.
#include "output/data/workbook_file.hpp"

#include "base/number_text.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

texts split(const std::string& line, char separator) {
    texts parts;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
        end = line.find(separator, start);
        parts.push_back(line.substr(start, end == std::string::npos ? end : end - start));
    }
    return parts;
}

/// What tests/output/read_workbook.py prints about a sheet.
struct read_sheet {
    std::string name;
    std::map<std::pair<int, int>, texts>
        cells;                  ///< by row and column: "n" or "t", and what it holds
    std::vector<texts> charts;  ///< type, title, x title, y title, column, row
    std::vector<texts> series;  ///< of all charts: name, x, y, smooth, marker
};

std::vector<read_sheet> read_workbook(const std::string& bytes) {
    const temporary_folder folder;
    write_file(folder.file("perf.xlsx"), bytes);
    const std::string printed = folder.file("printed.txt");
    const std::string command = std::string(KVT_PYTHON) + " " + KVT_SCRIPT + " '" +
                                folder.file("perf.xlsx") + "' > '" + printed + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::vector<read_sheet> sheets;
    for (const std::string& line : split_lines(read_file(printed))) {
        const texts parts = split(line, '\t');
        if (parts[0] == "sheet") {
            sheets.push_back({parts[1], {}, {}, {}});
        } else if (parts[0] == "cell") {
            sheets.back().cells[{std::stoi(parts[1]), std::stoi(parts[2])}] = {parts[3], parts[4]};
        } else {
            auto& rows = parts[0] == "chart" ? sheets.back().charts : sheets.back().series;
            rows.push_back({parts.begin() + 1, parts.end()});
        }
    }
    return sheets;
}

std::string workbook_of(const program& kavetta) {
    return workbook_bytes(make_workbook_plan(source_of(kavetta)));
}

/// The rows of numbers of a data file, and the line of headers above each block of them.
struct read_block {
    texts headers;
    std::vector<texts> rows;
};

std::vector<read_block> read_data_file(const program& kavetta, std::string_view name) {
    std::vector<read_block> blocks;
    std::string line_before;
    for (const std::string& line : split_lines(file_bytes(kavetta, file_group::data, name))) {
        const bool is_row =
            line.find(';') != std::string::npos && line.find('(') == std::string::npos;
        if (is_row && line_before.find('(') != std::string::npos) {
            blocks.push_back({split(line_before, ';'), {}});
        }
        if (is_row) {
            blocks.back().rows.push_back(split(line, ';'));
        }
        line_before = line;
    }
    return blocks;
}

/// The reader has 16 digits of a number; its text in 15 digits is that of the file but where the
/// digits behind are close to a half.
void expect_same_number(const std::string& cell, const std::string& in_file) {
    const double value = std::strtod(cell.c_str(), nullptr);
    const double expected = number_of_text(in_file);
    EXPECT_LE(std::abs(value - expected), 6e-15 * std::abs(expected)) << cell << " " << in_file;
}

/// Every number of a block stands in its cell. Answers how many there are.
std::size_t expect_cells(const read_sheet& sheet, int first_row, const read_block& block) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < block.rows.size(); ++i) {
        for (std::size_t j = 0; j < block.rows[i].size(); ++j) {
            const auto cell =
                sheet.cells.find({first_row + static_cast<int>(i), static_cast<int>(j) + 1});
            if (cell == sheet.cells.end() || cell->second[0] != "n") {
                ADD_FAILURE() << sheet.name << ": no number in row " << i << ", column " << j;
                return count;
            }
            expect_same_number(cell->second[1], block.rows[i][j]);
            ++count;
        }
    }
    return count;
}

std::size_t text_count(const read_sheet& sheet) {
    std::size_t count = 0;
    for (const auto& [place, cell] : sheet.cells) {
        count += cell[0] == "t" ? 1 : 0;
    }
    return count;
}

/// A sheet, the file that it repeats, the rows where its blocks begin.
struct sheet_of_file {
    const char* file;
    std::vector<int> first_rows;
    std::size_t text_count;  ///< title, ripple or headings, headers
};

const std::vector<sheet_of_file> SHEETS = {{"perf_flow", {4}, 1 + 3},
                                           {"perf_torque", {4}, 1 + 4},
                                           {"perf_contact", {4, 2174}, 1 + 2 + 3 + 5},
                                           {"perf_volumetric", {5}, 2 + 3},
                                           {"perf_efficiency", {4}, 1 + 5}};

void expect_numbers_of_files(const program& kavetta) {
    const std::vector<read_sheet> sheets = read_workbook(workbook_of(kavetta));
    ASSERT_EQ(sheets.size(), SHEETS.size());
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const std::vector<read_block> blocks = read_data_file(kavetta, SHEETS[i].file);
        ASSERT_EQ(blocks.size(), SHEETS[i].first_rows.size()) << SHEETS[i].file;
        std::size_t numbers = 0;
        for (std::size_t block = 0; block < blocks.size(); ++block) {
            numbers += expect_cells(sheets[i], SHEETS[i].first_rows[block], blocks[block]);
        }
        EXPECT_EQ(text_count(sheets[i]), SHEETS[i].text_count) << SHEETS[i].file;
        EXPECT_EQ(sheets[i].cells.size(), numbers + SHEETS[i].text_count) << "and nothing else";
    }
}

TEST(workbook_file, has_the_numbers_of_the_data_files_in_its_cells) {
    expect_numbers_of_files(performed_design("n07_engine_oil_groove"));
}

TEST(workbook_file, has_them_in_german_with_inches_too) {
    program kavetta = performed_design("n07_inch_hydraulic");
    kavetta.app_state.language = GERMAN;
    expect_numbers_of_files(kavetta);
}

TEST(workbook_file, has_the_texts_and_the_charts_of_the_plan) {
    program kavetta = performed_design("n07_inch_hydraulic");
    kavetta.app_state.language = GERMAN;
    const std::vector<workbook_sheet> plan = make_workbook_plan(source_of(kavetta));
    const std::vector<read_sheet> sheets = read_workbook(workbook_bytes(plan));
    ASSERT_EQ(sheets.size(), plan.size());
    for (std::size_t i = 0; i < plan.size(); ++i) {
        EXPECT_EQ(sheets[i].name, plan[i].name);
        for (const sheet_text& cell : plan[i].texts) {
            EXPECT_EQ(sheets[i].cells.at({cell.row, cell.column}), (texts{"t", cell.text}));
        }
        ASSERT_EQ(sheets[i].charts.size(), plan[i].charts.size());
        for (std::size_t chart = 0; chart < plan[i].charts.size(); ++chart) {
            const workbook_chart& planned = plan[i].charts[chart];
            // Cells are 48 by 15 points: 330 and 420 points lie in columns G and I, 40 and 360 in
            // rows 3 and 25.
            EXPECT_EQ(sheets[i].charts[chart],
                      (texts{"ScatterChart", planned.title, planned.x_title, planned.y_title,
                             planned.place.left == 330.0 ? "6" : "8",
                             planned.place.top == 40.0 ? "2" : "24"}));
        }
    }
}

TEST(workbook_file, draws_smooth_lines_without_markers_through_the_cells_of_the_plan) {
    struct expected_line {
        std::size_t sheet, line_count, line;  ///< of all charts of the sheet
        std::string name, x, y;
    };
    const expected_line lines[] = {
        {0, 6, 5, "6000 rpm", "Flow_Pressure!$B$34:$B$39", "Flow_Pressure!$C$34:$C$39"},
        {1, 12, 6, "600 rpm", "'Drive Power'!$B$4:$B$9", "'Drive Power'!$D$4:$D$9"},
        {2, 6, 0, "101300 Pa", "'Contact Stress'!$C$7574:$C$7753",
         "'Contact Stress'!$E$7574:$E$7753"},
        {3, 1, 0, "600 rpm", "Pressure_Ripple!$A$5:$A$364", "Pressure_Ripple!$C$5:$C$364"},
        {4, 12, 6, "600 rpm", "Efficiencies!$B$4:$B$9", "Efficiencies!$E$4:$E$9"}};
    const std::vector<read_sheet> sheets =
        read_workbook(workbook_of(performed_design("n07_engine_oil_groove")));
    ASSERT_EQ(sheets.size(), 5U);
    for (const expected_line& line : lines) {
        const std::vector<texts>& series = sheets[line.sheet].series;
        ASSERT_EQ(series.size(), line.line_count);
        EXPECT_EQ(series[line.line], (texts{line.name, line.x, line.y, "True", "None"}));
    }
}

TEST(workbook_file, keeps_a_text_that_looks_like_a_formula_a_text) {
    const std::vector<workbook_sheet> plan = {{"Sheet", {{1, 1, "=1+1"}}, {}, {}}};
    const std::vector<read_sheet> sheets = read_workbook(workbook_bytes(plan));
    EXPECT_EQ(sheets.at(0).cells.at({1, 1})[1], "=1+1");
}

TEST(workbook_file, tells_each_sheet_that_is_done) {
    std::vector<int> told;
    const std::vector<workbook_sheet> plan = {{"One", {}, {}, {}}, {"Two", {}, {}, {}}};
    workbook_bytes(plan, [&](int count) { told.push_back(count); });
    EXPECT_EQ(told, (std::vector<int>{1, 2}));
}

}  // namespace
}  // namespace kvt
