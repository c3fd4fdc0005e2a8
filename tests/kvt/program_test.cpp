// Tests of the program kvt itself, started as a process: exit statuses, streams, and what it leaves
// on the disk.
#include "base/path_text.hpp"
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

    /// The exit status of a shell command in which $KVT is the program and $PROJECT the example.
    int status_of(const std::string& script) const {
        const std::string command = "cd " + quoted(utf8_of_path(folder.path())) +
                                    " && KVT=" + quoted(KVT_PROGRAM) + " PROJECT=" + project +
                                    " bash -c " + quoted(script);
        const int ended = std::system(command.c_str());
        return WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    }
    std::string told() const { return read_file(folder.file("err")); }

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
        left.push_back(utf8_of_path(fs::relative(file.path(), folder.file("home"))));
    }
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left,
              (std::vector<std::string>{"files", "files/engine_oil.KVT", "files/outer_gcode.cnc",
                                        "files/port_radius_coordinates.txt", "report.json"}));
}

TEST_F(program_test, ends_with_1_when_standard_output_is_full) {
    const char* full = "standard output: Run-time error 75: Path/File access error\n";
    for (const char* command : {"calc \"$PROJECT\"", "calc \"$PROJECT\" --json - --full",
                                "assist \"$PROJECT\" --set volumereqd=20",
                                "export \"$PROJECT\" --out files --dxf inner", "--help"}) {
        EXPECT_EQ(status_of(std::string("\"$KVT\" ") + command + " >/dev/full 2>err"), 1)
            << command;
        EXPECT_TRUE(told().ends_with(full)) << command << told();
    }
    EXPECT_EQ(status_of("\"$KVT\" calc none.KVT >/dev/full 2>err"), 3)
        << "the first failure counts";
}

TEST_F(program_test, ends_with_1_when_standard_output_is_closed_and_prints_into_no_file) {
    EXPECT_EQ(status_of("\"$KVT\" calc \"$PROJECT\" --json report.json >&- 2>err"), 1);
    EXPECT_TRUE(json::accept(read_file(folder.file("report.json"))));
    EXPECT_EQ(status_of("\"$KVT\" export \"$PROJECT\" --out files --dxf inner <&- >&- 2>&-"), 1);
    EXPECT_EQ(split_lines(read_file(folder.file("files/engine_oil.KVT"))).size(), 59U);
    EXPECT_TRUE(read_file(folder.file("files/inner.dxf")).ends_with("EOF\r\n"));
}

TEST_F(program_test, ends_with_1_when_the_reader_of_standard_output_has_gone) {
    EXPECT_EQ(
        status_of(
            "(sleep 0.2; \"$KVT\" calc \"$PROJECT\" --json - --full 2>err; echo $? >status) | "
            "true; cat status; exit $(cat status)"),
        1);
    EXPECT_NE(told().find("standard output: "), std::string::npos);
}

TEST_F(program_test, reads_no_more_than_1_MB_of_a_project_and_says_so) {
    std::string bytes = read_file(example("engine_oil"));
    bytes.append((std::size_t{1} << 20) - bytes.size(), 'x');
    write_file(folder.file("large.KVT"), bytes);
    EXPECT_EQ(status_of("\"$KVT\" calc large.KVT --stage profiles >out 2>err"), 0);
    write_file(folder.file("large.KVT"), bytes + "x");
    EXPECT_EQ(status_of("\"$KVT\" calc large.KVT >out 2>err"), 3);
    EXPECT_EQ(told(),
              "large.KVT: Run-time error 75: Path/File access error (larger than 1 MB, so it "
              "is no file of this program)\n");
}

TEST_F(program_test, refuses_devices_and_pipes_without_waiting_for_them) {
    EXPECT_EQ(status_of("mkfifo pipe.KVT; timeout 20 \"$KVT\" calc pipe.KVT >out 2>err"), 3);
    EXPECT_EQ(told(),
              "pipe.KVT: Run-time error 75: Path/File access error (a device or a pipe, not "
              "a file)\n");
    EXPECT_EQ(status_of("timeout 20 \"$KVT\" calc /dev/zero --language 2 >out 2>err"), 3);
    EXPECT_NE(told().find("ein Gerät oder eine Pipe, keine Datei"), std::string::npos);
    EXPECT_EQ(status_of("cat \"$PROJECT\" | timeout 20 \"$KVT\" calc /dev/stdin >out 2>err"), 3);
    EXPECT_EQ(status_of("\"$KVT\" calc /dev/stdin --stage profiles <\"$PROJECT\" >out 2>err"), 0)
        << "a file under another name";
}

TEST_F(program_test, ends_with_3_and_a_message_without_memory) {
    if (KVT_IS_SANITIZED) {
        GTEST_SKIP() << "the sanitizers need more memory than any limit leaves";
    }
    // Room for the program itself and for nothing that a design needs.
    EXPECT_EQ(
        status_of("for kb in 8000 9000 10000 11000 12000 13000 14000 15000 16000; do "
                  "(ulimit -v $kb; \"$KVT\" --version >out 2>/dev/null) || continue; "
                  "(ulimit -v $kb; \"$KVT\" calc \"$PROJECT\" >out 2>err); exit $?; done; exit 99"),
        3);
    EXPECT_EQ(told(), "Run-time error 7: Out of memory\n");
}

/// $STUDY goes on where it was killed, or interrupted: its table is that of one that was not.
constexpr const char* KILLED_STUDY =
    "STUDY=\"$KVT study $PROJECT --vary ecc=2.5:3 --vary thick=8:14 --sample sobol:150 "
    "--seed 4 $MORE\"; "
    "$STUDY --out whole.csv 2>/dev/null && "
    "{ $STUDY --out study.csv 2>/dev/null & } && "
    "until [ $(wc -l < study.csv) -ge 20 ]; do sleep 0.01; done 2>/dev/null; "
    "kill -$SIGNAL $!; wait $!; echo $? > status; "
    "[ -e study.csv.unfinished ] && ! cmp -s study.csv whole.csv && "
    "$STUDY --out study.csv --resume 2>/dev/null && "
    "cmp study.csv whole.csv && [ ! -e study.csv.unfinished ]";

TEST_F(program_test, goes_on_with_a_study_that_was_killed) {
    EXPECT_EQ(status_of("SIGNAL=KILL; MORE=--jobs=2; " + std::string(KILLED_STUDY)), 0);
}

TEST_F(program_test, goes_on_with_a_study_that_was_interrupted) {
    // Without set -m the shell has its background programs ignore Ctrl+C.
    EXPECT_EQ(status_of("set -m; SIGNAL=INT; MORE=--jobs=1; " + std::string(KILLED_STUDY)), 0);
    EXPECT_EQ(read_file(folder.file("status")), "1\n");
}

}  // namespace
}  // namespace kvt
