// Tests of the DXF and STEP files of kvt export: which are written, left out or refused.
#include "kvt/kvt_run.hpp"

#include <set>

namespace kvt {
namespace {

namespace fs = std::filesystem;

kvt_run export_to(const temporary_folder& folder, std::vector<std::string> options) {
    options.insert(options.begin(),
                   {"export", example("engine_oil"), "--out", folder.path().string()});
    return run_kvt(options);
}

std::set<std::string> drawings_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        if (entry.path().extension() == ".dxf" || entry.path().extension() == ".stp") {
            names.insert(entry.path().filename().string());
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
