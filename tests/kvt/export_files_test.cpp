// Tests of the files of kvt export: which are written, which are left out or refused, and with
// what.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"

#include <set>

namespace kvt {
namespace {

namespace fs = std::filesystem;

kvt_run export_design_of(const std::string& name, const temporary_folder& folder,
                         std::vector<std::string> options) {
    options.insert(options.begin(),
                   {"export", example(name), "--out", utf8_of_path(folder.path())});
    return run_kvt(options);
}

std::set<std::string> cnc_files_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        if (entry.path().extension() == ".cnc") {
            names.insert(utf8_of_path(entry.path().stem()));
        }
    }
    return names;
}

const std::set<std::string> WITHOUT_TOOL = {
    "inner_xy",    "inner_lathe", "outer_xy",    "outer_gcode", "outer_gcode_checked",
    "outer_lathe", "inlet_xy",    "inlet_gcode", "outlet_xy",   "outlet_gcode"};

TEST(export_cnc, writes_every_file_with_both_tools) {
    const temporary_folder folder;
    const kvt_run run = export_design_of("engine_oil", folder,
                                         {"--cnc", "all", "--tool", "2", "--groove-tool", "1"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(cnc_files_in(folder).size(), 16U);
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

TEST(export_cnc, tells_arcs_that_a_machine_runs_off_the_profile_in_a_hint) {
    const temporary_folder folder;
    std::vector<std::string> options;
    for (const char* typed :
         {"ecc=1.7733", "radouter=2.6818", "radinnroot=17.259", "fillet=0.1979", "shaftdiameter=10",
          "minmaterial=1", "maxdiameter=60", "outer_root=", "metering_groove=0",
          "inlet_inner_radius=", "inlet_outer_radius=", "Outlet_inner_radius=",
          "Outlet_outer_radius=", "port_radii=0.5", "numlobes=7"}) {
        options.insert(options.end(), {"--set", typed});
    }
    options.insert(options.end(), {"--cnc", "outer_gcode,outer_gcode_checked"});
    const kvt_run run = export_design_of("engine_oil", folder, options);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(cnc_files_in(folder), (std::set<std::string>{"outer_gcode", "outer_gcode_checked"}));
    EXPECT_NE(run.err.find("\nHint: Arcs of the file \"Outer Rotor, FANUC G-Codes\" that a "
                           "machine runs off the profile"),
              std::string::npos)
        << run.err;
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

kvt_run export_to(const temporary_folder& folder, std::vector<std::string> options) {
    options.insert(options.begin(),
                   {"export", example("engine_oil"), "--out", utf8_of_path(folder.path())});
    return run_kvt(options);
}

std::set<std::string> drawings_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        if (entry.path().extension() == ".dxf" || entry.path().extension() == ".stp") {
            names.insert(utf8_of_path(entry.path().filename()));
        }
    }
    return names;
}

const std::set<std::string> ALL = {"inner.dxf",  "outer.dxf",    "inlet.dxf",
                                   "outlet.dxf", "groove.dxf",   "inner.stp",
                                   "outer.stp",  "assembly.stp", "ports.stp"};

TEST(export_drawings, writes_everything_without_a_choice) {
    const temporary_folder folder;
    EXPECT_EQ(export_to(folder, {}).status, 0);
    EXPECT_EQ(drawings_in(folder), ALL);
    EXPECT_TRUE(fs::exists(folder.file("inner_xy.cnc")));
}

TEST(export_drawings, writes_what_is_named_and_nothing_else) {
    const temporary_folder folder;
    EXPECT_EQ(export_to(folder, {"--dxf", "outer,groove", "--step", "inner"}).status, 0);
    EXPECT_EQ(drawings_in(folder), (std::set<std::string>{"outer.dxf", "groove.dxf", "inner.stp"}));
    EXPECT_FALSE(fs::exists(folder.file("inner_xy.cnc")));
}

TEST(export_drawings, writes_all_of_one_kind) {
    const temporary_folder folder;
    EXPECT_EQ(export_to(folder, {"--step", "all"}).status, 0);
    EXPECT_EQ(drawings_in(folder),
              (std::set<std::string>{"inner.stp", "outer.stp", "assembly.stp", "ports.stp"}));
}

TEST(export_drawings, writes_exact_files_by_their_own_options_only) {
    const temporary_folder folder;
    EXPECT_EQ(
        export_to(folder, {"--step-exact", "all", "--dxf-exact", "pair,inner_polyline"}).status, 0);
    EXPECT_EQ(
        drawings_in(folder),
        (std::set<std::string>{"inner_exact.stp", "outer_exact.stp", "assembly_exact.stp",
                               "ports_exact.stp", "pair_exact.dxf", "inner_polyline_exact.dxf"}));
    EXPECT_EQ(export_to(folder, {"--svg", "ports", "--stl", "inner"}).status, 0);
    EXPECT_TRUE(fs::exists(folder.file("ports.svg")));
    EXPECT_TRUE(fs::exists(folder.file("inner.stl")));
    EXPECT_FALSE(fs::exists(folder.file("inner.svg")));
}

TEST(export_drawings, takes_the_chord_error_of_the_stl_files) {
    const temporary_folder coarse, fine;
    EXPECT_EQ(export_to(coarse, {"--stl", "outer"}).status, 0);
    EXPECT_EQ(export_to(fine, {"--stl", "outer", "--chord-error", "0.0005"}).status, 0);
    EXPECT_GT(fs::file_size(fine.file("outer.stl")), 2 * fs::file_size(coarse.file("outer.stl")));
    EXPECT_NE(export_to(coarse, {"--stl", "outer", "--chord-error", "0"}).status, 0);
    EXPECT_NE(export_to(coarse, {"--stl", "outer", "--chord-error", "fine"}).status, 0);
}

TEST(export_drawings, adds_the_files_of_the_simulation_exchange) {
    const temporary_folder folder;
    EXPECT_EQ(export_to(folder, {"--dxf", "inner", "--gt"}).status, 0);
    EXPECT_EQ(drawings_in(folder),
              (std::set<std::string>{"inner.dxf", "inner_rotor_GT.stp", "outer_rotor_GT.stp",
                                     "in_port_GT.stp", "out_port_GT.stp"}));
}

TEST(export_drawings, carries_the_given_date_and_the_path) {
    const temporary_folder folder;
    export_to(folder, {"--step", "outer", "--date", "2021-11-03"});
    const std::vector<std::string> lines = split_lines(read_file(folder.file("outer.stp")));
    EXPECT_EQ(lines[4], "FILE_NAME ('" + folder.file("outer.stp") + "',");
    EXPECT_EQ(lines[5], "    '2021-11-03',");
}

TEST(export_drawings, leaves_out_a_groove_that_is_not_ticked_and_refuses_it_when_named) {
    const temporary_folder folder;
    EXPECT_EQ(export_to(folder, {"--dxf", "all", "--set", "metering_groove=0"}).status, 0);
    EXPECT_EQ(drawings_in(folder),
              (std::set<std::string>{"inner.dxf", "outer.dxf", "inlet.dxf", "outlet.dxf"}));
    const temporary_folder other;
    const kvt_run run = export_to(other, {"--dxf", "groove,inner", "--set", "metering_groove=0"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "groove.dxf: not written, the port is not designed\n");
    EXPECT_EQ(drawings_in(other), std::set<std::string>{"inner.dxf"});
}

TEST(export_drawings, has_no_bodies_of_a_refused_port) {
    const temporary_folder folder;
    // No side can join such angles: the search for its corners runs out.
    const kvt_run run =
        export_to(folder, {"--step", "ports", "--dxf", "all", "--set", "inlet_start_inner=83",
                           "--set", "inlet_start_outer=18", "--set", "inlet_end_inner=91", "--set",
                           "inlet_end_outer=173"});
    EXPECT_EQ(run.status, 1);
    EXPECT_FALSE(drawings_in(folder).contains("inlet.dxf"));
    const std::string bytes = read_file(folder.file("ports.stp"));
    EXPECT_EQ(bytes.find("\r\n#11 = MANIFOLD"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n#1000011 = MANIFOLD"), std::string::npos);
}

TEST(export_drawings, refuses_unknown_names_before_anything_is_read) {
    EXPECT_EQ(run_kvt({"export", "none.KVT", "--out", "none", "--dxf", "innner"}).status, 2);
    EXPECT_EQ(run_kvt({"export", "none.KVT", "--out", "none", "--step", "inlet"}).status, 2);
}

}  // namespace
}  // namespace kvt
