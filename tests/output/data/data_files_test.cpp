// The lines of the performance data files.
#include "output/data/data_files.hpp"

#include "support/data_records.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <limits>

namespace kvt {
namespace {

data_table small_table() {
    data_table table;
    table.title = "Title 'pump'";
    table.blocks = {{"", {"Speed", " Power"}, {600.0, 0.5, 700.0, -1e-05}}};
    table.end = "End of File";
    return table;
}

std::string written(const data_table& table, char decimal_mark = '.') {
    text_lines text;
    write_data_table(table, decimal_mark, text);
    return text.bytes();
}

TEST(data_files, are_title_headers_rows_and_last_line) {
    EXPECT_EQ(written(small_table()),
              "Title 'pump'\r\n\r\nSpeed; Power\r\n600;0.5\r\n700;-1E-05\r\n\r\nEnd of File\r\n");
}

TEST(data_files, have_the_decimal_mark_of_the_system) {
    data_table table = small_table();
    table.blocks[0].values[3] = -1.5e-05;
    EXPECT_EQ(written(table, ','),
              "Title 'pump'\r\n\r\nSpeed; Power\r\n600;0,5\r\n700;-1,5E-05\r\n\r\nEnd of File\r\n");
}

TEST(data_files, put_the_ripple_right_below_the_title) {
    data_table table = small_table();
    table.ripple_caption = "Pressure Ripple: ";
    table.ripple_percent = 12.25;
    EXPECT_TRUE(written(table).starts_with(
        "Title 'pump'\r\nPressure Ripple: 12.25%\r\n\r\nSpeed; Power\r\n"));
    EXPECT_TRUE(written(table, ',').starts_with("Title 'pump'\r\nPressure Ripple: 12,25%\r\n\r\n"));
}

TEST(data_files, put_remarks_before_the_blocks_and_a_blank_line_between_them) {
    data_table table = small_table();
    table.remarks = {"one", "two"};
    table.blocks = {{"FIRST", {"Speed"}, {1.0}}, {"SECOND", {"Speed"}, {2.0}}};
    EXPECT_EQ(written(table),
              "Title 'pump'\r\n\r\none\r\ntwo\r\n\r\nFIRST\r\nSpeed\r\n1\r\n\r\n"
              "SECOND\r\nSpeed\r\n2\r\n\r\nEnd of File\r\n");
}

TEST(data_files, keep_the_rows_before_a_number_that_is_none) {
    data_table table = small_table();
    table.blocks[0].values[3] = std::numeric_limits<double>::infinity();
    text_lines text;
    EXPECT_FAILURE(write_data_table(table, '.', text), failure::overflow);
    EXPECT_EQ(text.bytes(), "Title 'pump'\r\n\r\nSpeed; Power\r\n600;0.5\r\n");
}

TEST(data_files, are_written_with_the_decimal_mark_of_their_source) {
    data_records records;
    records.results.vol_eff[0][0] = 0.333;
    file_source source = records.source();
    source.decimal_mark = ',';
    text_lines text;
    write_data_file(data_file::efficiency, source, text);
    EXPECT_NE(text.bytes().find("\r\n100;101300;33,3;0;0\r\n"), std::string::npos);
}

}  // namespace
}  // namespace kvt
