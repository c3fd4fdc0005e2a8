// Tests of kvt report.
#include "app/export/given_date.hpp"
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

const std::string AFTERNOON = "2021-11-03T14:32:07";

kvt_run report_engine_oil(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"report", example("engine_oil"), "--date", AFTERNOON};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments);
}

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(report_command, prints_the_report_on_standard_output) {
    const kvt_run run = report_engine_oil({});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.out.starts_with("    Kavetta V2021\n    ")) << run.out;
    EXPECT_TRUE(holds(run.out, " " + time_of_day(given_clock(AFTERNOON)) +
                                   "\n\n\n\n\n    Gerotor Design Parameters\n\n"));
    EXPECT_TRUE(holds(run.out, "\n    Max Volumetric Efficiency           "));
    EXPECT_EQ(run.err, "");
}

TEST(report_command, writes_the_same_lines_to_a_text_file) {
    const temporary_folder folder;
    const kvt_run run = report_engine_oil({"--language", "2", "--out", folder.file("report.TXT")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    const std::string bytes = read_file(folder.file("report.TXT"));
    EXPECT_TRUE(holds(bytes, "\r\n    Exzentrizit\xE4t      "));
    const std::string printed = report_engine_oil({"--language", "2"}).out;
    EXPECT_EQ(split_lines(bytes).size(), split_lines(printed).size());
}

TEST(report_command, writes_a_pdf_file) {
    const temporary_folder folder;
    EXPECT_EQ(report_engine_oil({"--out", folder.file("report.pdf")}).status, 0);
    const std::string bytes = read_file(folder.file("report.pdf"));
    EXPECT_TRUE(bytes.starts_with("%PDF-1.4\n"));
    EXPECT_TRUE(holds(bytes, "(    Gerotor Design Parameters) Tj"));
}

TEST(report_command, leaves_results_empty_that_the_stages_did_not_reach) {
    const kvt_run early = report_engine_oil({"--stage", "ports"});
    EXPECT_EQ(early.status, 0);
    EXPECT_TRUE(holds(early.out, "\n    Max Volumetric Efficiency\n"));
    const kvt_run refused = report_engine_oil({"--set", "ecc=0"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(holds(refused.out, "\n    Calculated capacity                          Lit"));
}

/// Calculate Profiles writes the point back.
TEST(report_command, takes_entries_as_calc_does) {
    EXPECT_TRUE(holds(report_engine_oil({"--set", "thick=12,5"}).out,
                      "\n    Rotor thickness                    12.5\n"));
}

TEST(report_command, refuses_another_ending_and_another_date) {
    EXPECT_EQ(report_engine_oil({"--out", "report.doc"}).status, 2);
    EXPECT_EQ(run_kvt({"report", example("engine_oil"), "--date", "yesterday"}).status, 2);
}

TEST(report_command, tells_a_file_that_can_not_be_written) {
    const temporary_folder folder;
    const kvt_run run = report_engine_oil({"--out", folder.file("none/report.pdf")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, folder.file("none/report.pdf") + ": Run-time error 76: Path not found\n");
}

TEST(report_command, writes_nothing_for_a_project_that_can_not_be_read) {
    const temporary_folder folder;
    const kvt_run run = run_kvt({"report", "none.KVT", "--out", folder.file("report.txt")});
    EXPECT_EQ(run.status, 3);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
}  // namespace kvt
