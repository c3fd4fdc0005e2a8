// Tests of the program kvt itself, started as a process: exit statuses, streams, and what it leaves
// on the disk.
#include "base/text_file.hpp"
#include "kvt/kvt_run.hpp"

#include <algorithm>
#include <cstdlib>
#include <sys/wait.h>

namespace kvt {
namespace {

namespace fs = std::filesystem;

std::string quoted(const std::string& text) {
    return "'" + text + "'";
}

/// Runs the program in a folder that is also its home, so that whatever it leaves behind is found
/// there.
class program_test : public testing::Test {
  protected:
    kvt_run start(const std::string& arguments) {
        const std::string home = folder.file("home");
        fs::create_directories(home);
        const std::string command = "cd " + quoted(home) + " && HOME=" + quoted(home) +
                                    " KAVETTA_HOME=" + quoted(home + "/Kavetta") + " " +
                                    quoted(KVT_PROGRAM) + " " + arguments + " >" +
                                    quoted(folder.file("out")) + " 2>" + quoted(folder.file("err"));
        const int ended = std::system(command.c_str());
        kvt_run run;
        run.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
        run.out = read_file(folder.file("out"));
        run.err = read_file(folder.file("err"));
        return run;
    }

    void expect_nothing_left() const { EXPECT_TRUE(fs::is_empty(folder.file("home"))); }

    temporary_folder folder;
    const std::string project = quoted(example("engine_oil"));
};

TEST_F(program_test, ends_with_0_and_a_summary_for_a_good_design) {
    const kvt_run run = start("calc " + project);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, run_kvt({"calc", example("engine_oil")}).out);
    EXPECT_EQ(run.err, "");
    expect_nothing_left();
}

TEST_F(program_test, ends_with_1_and_the_message_on_standard_error_for_a_refused_design) {
    const kvt_run run = start("calc " + project + " --set clearn=0 --json -");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "Input a value for the Tip Clearance\n");
    EXPECT_EQ(run.report()["ended"], "validation");
    expect_nothing_left();
}

TEST_F(program_test, ends_with_1_and_no_recovery_file_for_a_run_time_failure) {
    const kvt_run run = start("calc " + project + " --set numlobes=8x");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "Run-time error 13: Type mismatch\n");
    expect_nothing_left();
}

TEST_F(program_test, ends_with_2_for_a_wrong_command_line) {
    const kvt_run run = start("calc " + project + " --set thickness=3 --json -");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("'thickness'"), std::string::npos) << run.err;
    expect_nothing_left();
}

TEST_F(program_test, ends_with_3_and_json_alone_for_an_unreadable_file) {
    const kvt_run run = start("calc none.KVT --json - --full");
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.report()["ended"], "read_error");
    EXPECT_EQ(run.err, "none.KVT: Run-time error 53: File not found\n");
    expect_nothing_left();
}

TEST_F(program_test, writes_what_the_options_name_and_nothing_else) {
    EXPECT_EQ(start("calc " + project + " --json report.json").status, 0);
    EXPECT_EQ(start("export " + project + " --out files --cnc outer_gcode").status, 0);
    std::vector<std::string> left;
    for (const auto& file : fs::recursive_directory_iterator(folder.file("home"))) {
        left.push_back(fs::relative(file.path(), folder.file("home")).string());
    }
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left,
              (std::vector<std::string>{"files", "files/engine_oil.KVT", "files/outer_gcode.cnc",
                                        "files/port_radius_coordinates.txt", "report.json"}));
}

}  // namespace
}  // namespace kvt
