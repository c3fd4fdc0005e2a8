// Tests of kvt export: the project saved again with what was typed, and the files of the design.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;

kvt_run export_engine_oil(const std::string& folder, const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments = {"export", example("engine_oil"), "--out", folder};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments);
}

TEST(export_command, writes_the_project_under_its_name_with_that_path_as_first_line) {
    const temporary_folder folder;
    const kvt_run run = export_engine_oil(utf8_of_path(folder.path()), {"--cnc", "inner_xy"});
    const std::string written = folder.file("engine_oil.KVT");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, written + "\n" + folder.file("inner_xy.cnc") + "\n" +
                           folder.file("port_radius_coordinates.txt") + "\n");
    EXPECT_EQ(run.err, "");
    std::vector<std::string> expected = split_lines(read_file(example("engine_oil")));
    expected[0] = written;
    EXPECT_EQ(split_lines(read_file(written)), expected);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 3);
}

TEST(export_command, writes_typed_texts_as_they_are_before_any_calculation) {
    const temporary_folder folder;
    const kvt_run run =
        export_engine_oil(utf8_of_path(folder.path()),
                          {"--set", "thick=12,50", "--set", "ecc=0", "--capacity-unit", "4"});
    const std::vector<std::string> lines = split_lines(read_file(folder.file("engine_oil.KVT")));
    EXPECT_EQ(lines[5], "12,50");
    EXPECT_EQ(lines[10], "0");
    EXPECT_EQ(lines[16], " 4 ");
    // Calculate Profiles refuses it, and the project stays alone.
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "The Eccentricity cannot be equal to zero!!\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

TEST(export_command, creates_the_folder) {
    const temporary_folder folder;
    EXPECT_EQ(export_engine_oil(folder.file("new/files"), {"--cnc", "outer_gcode"}).status, 0);
    EXPECT_TRUE(fs::exists(folder.file("new/files/engine_oil.KVT")));
}

TEST(export_command, gives_the_extension_of_projects_to_any_input) {
    const temporary_folder folder;
    const std::string input = folder.file("pump.v2.txt");
    write_file(input, read_file(example("engine_oil")));
    const kvt_run run =
        run_kvt({"export", input, "--out", utf8_of_path(folder.path()), "--cnc", "outer_gcode"});
    EXPECT_TRUE(run.out.starts_with(folder.file("pump.v2.KVT") + "\n")) << run.out;
}

TEST(export_command, writes_a_project_that_calculates_to_the_same_numbers) {
    const temporary_folder folder;
    export_engine_oil(utf8_of_path(folder.path()), {"--cnc", "outer_gcode"});
    const kvt_run again = run_kvt({"calc", folder.file("engine_oil.KVT"), "--json", "-", "--full"});
    EXPECT_EQ(again.out, calc_engine_oil({"--full"}).out);
}

TEST(export_command, ends_with_3_and_writes_nothing_when_the_project_cannot_be_read) {
    const temporary_folder folder;
    const kvt_run run = run_kvt({"export", folder.file("none.KVT"), "--out", folder.file("files")});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_FALSE(fs::exists(folder.file("files")));
}

TEST(export_command, ends_with_1_when_the_folder_cannot_be_made) {
    const temporary_folder folder;
    write_file(folder.file("files"), "a file in the way");
    const kvt_run run = export_engine_oil(folder.file("files"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              folder.file("files/engine_oil.KVT") + ": Run-time error 76: Path not found\n");
}

TEST(export_command, ends_with_1_and_writes_nothing_when_leaving_an_entry_fails) {
    const temporary_folder folder;
    EXPECT_EQ(export_engine_oil(utf8_of_path(folder.path()), {"--set", "numlobes=8x"}).status, 1);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace kvt
