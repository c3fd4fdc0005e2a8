// Tests of the CNC files of kvt export: which are written, which are left out or refused, and with
// what.
#include "kvt/kvt_run.hpp"

#include <set>

namespace kvt {
namespace {

namespace fs = std::filesystem;

kvt_run export_design_of(const std::string& name, const temporary_folder& folder,
                         std::vector<std::string> options) {
    options.insert(options.begin(), {"export", example(name), "--out", folder.path().string()});
    return run_kvt(options);
}

std::set<std::string> cnc_files_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        if (entry.path().extension() == ".cnc") {
            names.insert(entry.path().stem().string());
        }
    }
    return names;
}

const std::set<std::string> WITHOUT_TOOL = {"inner_xy",    "inner_lathe", "outer_xy",
                                            "outer_gcode", "outer_lathe", "inlet_xy",
                                            "inlet_gcode", "outlet_xy",   "outlet_gcode"};

TEST(export_cnc, writes_every_file_with_both_tools) {
    const temporary_folder folder;
    const kvt_run run = export_design_of("engine_oil", folder,
                                         {"--cnc", "all", "--tool", "2", "--groove-tool", "1"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(cnc_files_in(folder).size(), 14U);
    EXPECT_NE(read_file(folder.file("outlet_pocket.cnc")).find("//Section 2: Metering groove//"),
              std::string::npos);
}

TEST(export_cnc, leaves_out_what_needs_a_tool_and_says_so) {
    const temporary_folder folder;
    const kvt_run run = export_design_of("engine_oil", folder, {"--cnc", "all"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(cnc_files_in(folder), WITHOUT_TOOL);
    EXPECT_EQ(run.err.substr(0, run.err.find('\n')),
              "inner_offset.cnc: skipped, give a tool diameter with --tool");
}

TEST(export_cnc, leaves_out_the_pocket_of_the_groove_without_its_tool) {
    const temporary_folder folder;
    const kvt_run run =
        export_design_of("engine_oil", folder, {"--cnc", "outlet_pocket", "--tool", "2"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(
        run.err,
        "outlet_pocket.cnc: metering groove skipped, give a tool diameter with --groove-tool\n");
    const std::string bytes = read_file(folder.file("outlet_pocket.cnc"));
    EXPECT_EQ(bytes.find("Metering groove"), std::string::npos);
}

TEST(export_cnc, refuses_a_file_by_the_check_of_the_dialog_and_writes_the_others) {
    const temporary_folder folder;
    const kvt_run run =
        export_design_of("engine_oil", folder, {"--cnc", "inlet_pocket,inlet_xy", "--tool", "3,5"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(cnc_files_in(folder), std::set<std::string>{"inlet_xy"});
    EXPECT_EQ(
        run.err,
        "Max tool size to cut the designed port radius is 3mm.\nSelect a suitable tool size\n");
}

TEST(export_cnc, tells_how_many_cutter_centres_are_on_the_wrong_side) {
    const temporary_folder folder;
    const kvt_run run =
        export_design_of("engine_oil", folder, {"--cnc", "inner_offset", "--tool", "2"});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.err.starts_with(
        "inner_offset.cnc: Cutter positions of this file on the wrong side of the "
        "trochoid: "))
        << run.err;
    const temporary_folder checked;
    EXPECT_EQ(
        export_design_of("engine_oil", checked, {"--cnc", "inner_offset_checked", "--tool", "2"})
            .err,
        "");
}

TEST(export_cnc, takes_resolution_direction_and_language) {
    const temporary_folder folder;
    export_design_of(
        "engine_oil", folder,
        {"--cnc", "inner_xy", "--resolution", "0.01", "--clockwise", "--language", "2"});
    const std::vector<std::string> lines = split_lines(read_file(folder.file("inner_xy.cnc")));
    EXPECT_EQ(lines[1], "//Rotor des Projekts: engine_oil.//");
    const temporary_folder other;
    export_design_of("engine_oil", other, {"--cnc", "inner_xy", "--resolution", "0,01"});
    const std::vector<std::string> counterclockwise =
        split_lines(read_file(other.file("inner_xy.cnc")));
    const std::string& point = counterclockwise.at(10);
    const std::size_t y = point.find('Y') + 1;
    EXPECT_EQ(point.size() - point.rfind('.') - 1, 2U);
    EXPECT_EQ(lines.at(10), point.substr(0, y) + "-" + point.substr(y));
}

TEST(export_cnc, leaves_out_a_refused_port_and_refuses_it_by_name) {
    const temporary_folder folder;
    const std::vector<std::string> port = {"--set", "inlet_end_inner=2000", "--cnc"};
    std::vector<std::string> all = port;
    all.emplace_back("all");
    const kvt_run run = export_design_of("engine_oil", folder, all);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(cnc_files_in(folder).count("inlet_xy"), 0U);
    EXPECT_EQ(cnc_files_in(folder).count("outlet_xy"), 1U);
    std::vector<std::string> named = port;
    named.emplace_back("inlet_xy");
    EXPECT_NE(export_design_of("engine_oil", folder, named)
                  .err.find("inlet_xy.cnc: not written, the port is not designed"),
              std::string::npos);
}

TEST(export_cnc, dates_the_port_report) {
    const temporary_folder folder;
    export_design_of("engine_oil", folder, {"--cnc", "outer_gcode", "--date", "2021-11-03"});
    EXPECT_EQ(split_lines(read_file(folder.file("port_radius_coordinates.txt"))).at(2),
              "2021-11-03");
}

TEST(export_cnc, ends_with_2_for_values_that_cannot_be_used) {
    const std::vector<std::vector<std::string>> options = {
        {"--cnc", "inner"},       {"--cnc", "inner_xy,all,x"}, {"--resolution", "0.5"},
        {"--tool", "0"},          {"--tool", "2 mm"},          {"--groove-tool", "-1"},
        {"--date", "2021-02-30"}, {"--date", "3.11.2021"},     {"--date", "2021-1-03"},
        {"--tool", "1e999"},      {"--date", "2021-11-033"},
    };
    for (const std::vector<std::string>& option : options) {
        const temporary_folder folder;
        const kvt_run run = export_design_of("engine_oil", folder, option);
        EXPECT_EQ(run.status, 2) << option[1];
        EXPECT_TRUE(fs::is_empty(folder.path())) << option[1];
    }
}

}  // namespace
}  // namespace kvt
