// Tests of kvt excel: what is called, what is told, the exit status.
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

class excel_command_test : public testing::Test {
  protected:
    kvt_run record(const std::vector<std::string>& more = {}) {
        std::vector<std::string> arguments = {
            "excel", example("engine_oil"), "--host", "recorder", "--log", log};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run_kvt(arguments);
    }

    temporary_folder folder;
    std::string log = folder.file("calls.log");
};

TEST_F(excel_command_test, writes_down_the_calls_that_fill_the_workbook) {
    const kvt_run run = record();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "The workbook is filled\n");
    const std::string calls = read_file(log);
    EXPECT_TRUE(calls.starts_with("running excel.application: none\n"));
    EXPECT_NE(calls.find(".Name = \"Flow_Pressure\"\n"), std::string::npos);
    EXPECT_TRUE(calls.ends_with(".ScreenUpdating = true\n"));
}

TEST_F(excel_command_test, shortens_the_log_unless_all_of_it_is_asked_for) {
    record();
    const std::size_t shortened = read_file(log).size();
    record({"--full-log"});
    EXPECT_GT(read_file(log).size(), 10 * shortened) << "some 50,000 numbers";
}

TEST_F(excel_command_test, of_a_design_without_performance_calls_nothing) {
    const kvt_run run = record({"--set", "speed_hi="});
    EXPECT_EQ(run.status, 1);
    EXPECT_FALSE(std::filesystem::exists(log));
}

TEST_F(excel_command_test, tells_the_number_where_excel_is_not_installed) {
    const kvt_run run = run_kvt({"excel", example("engine_oil"), "--language", "2"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("Die Arbeitsmappe wurde nicht gefüllt, Excel meldete Fehlernummer 429"),
              std::string::npos)
        << run.err;
}

TEST_F(excel_command_test, has_a_log_of_the_recorder_alone) {
    EXPECT_EQ(run_kvt({"excel", example("engine_oil"), "--log", log}).status, 2);
    EXPECT_EQ(run_kvt({"excel", example("engine_oil"), "--full-log"}).status, 2);
}

TEST_F(excel_command_test, tells_a_log_that_cannot_be_written) {
    log = folder.file("none/calls.log");
    const kvt_run run = record();
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(log + ": "), std::string::npos);
}

}  // namespace
}  // namespace kvt
