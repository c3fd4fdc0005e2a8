// Tests of the report without a printer: the same lines as text and in the file.
#include "app/export/report_file.hpp"

#include "base/text_file.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"

namespace kvt {
namespace {

constexpr const char* DATE = "2021-11-03T14:32:07";

TEST(report_file, ends_in_txt_or_pdf) {
    EXPECT_EQ(report_file_problem("pump.PDF"), "");
    EXPECT_EQ(report_file_problem("pump.txt"), "");
    EXPECT_EQ(report_file_problem("pump.doc"), "'pump.doc' is no FILE.txt or FILE.pdf");
}

TEST(report_file, has_the_lines_of_the_report_with_cr_lf) {
    const temporary_folder folder;
    const program kavetta = performed_design("n04_fuel");
    write_report_file(kavetta, folder.file("pump.txt"), DATE);
    text_lines expected;
    for (const std::string& line : report_text(kavetta, DATE)) {
        expected.line(line);
    }
    EXPECT_GT(report_text(kavetta, DATE).size(), 20U);
    EXPECT_EQ(read_file(folder.file("pump.txt")), expected.bytes());
}

TEST(report_file, is_a_pdf_by_its_ending) {
    const temporary_folder folder;
    write_report_file(performed_design("n04_fuel"), folder.file("pump.pdf"), DATE);
    EXPECT_TRUE(read_file(folder.file("pump.pdf")).starts_with("%PDF-1.4\n"));
}

TEST(report_file, fails_where_there_is_no_folder) {
    const temporary_folder folder;
    EXPECT_THROW(write_report_file(program(), folder.file("none/pump.txt"), DATE), run_time_error);
}

}  // namespace
}  // namespace kvt
