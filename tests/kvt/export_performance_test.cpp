// Tests of kvt export --data, and of what --workbook says without a performance.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"

#include <set>

namespace kvt {
namespace {

namespace fs = std::filesystem;

const std::string NOTE = ": not written, the performance is not calculated; --force writes zeros\n";

kvt_run export_to(const temporary_folder& folder, std::vector<std::string> options) {
    options.insert(options.begin(), {"export", example("engine_oil"), "--out",
                                     utf8_of_path(folder.path()), "--dxf", "inner"});
    return run_kvt(options);
}

std::set<std::string> performance_files_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        const std::string name = utf8_of_path(entry.path().filename());
        if (name.starts_with("perf")) {
            names.insert(name);
        }
    }
    return names;
}

const std::set<std::string> DATA_FILES = {"perf_contact.txt", "perf_efficiency.txt",
                                          "perf_flow.txt", "perf_torque.txt",
                                          "perf_volumetric.txt"};

TEST(export_performance, writes_the_data_files_in_the_order_of_the_menu) {
    const temporary_folder folder;
    const kvt_run run = export_to(folder, {"--data"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(performance_files_in(folder), DATA_FILES);
    std::string paths;
    for (const char* name : {"flow", "torque", "contact", "efficiency", "volumetric"}) {
        paths += folder.file(std::string("perf_") + name + ".txt") + "\n";
    }
    EXPECT_TRUE(run.out.ends_with("port_radius_coordinates.txt\n" + paths)) << run.out;
    EXPECT_TRUE(fs::exists(folder.file("inner.dxf"))) << "beside the files of the design";
}

TEST(export_performance, is_left_out_when_nobody_asks) {
    const temporary_folder folder;
    const kvt_run run = export_to(folder, {"--set", "speed_hi="});
    EXPECT_EQ(run.status, 0) << "the performance is not looked at";
    EXPECT_TRUE(performance_files_in(folder).empty());
}

TEST(export_performance, has_the_decimal_comma_in_the_data_files_alone) {
    const temporary_folder points, commas;
    export_to(points, {"--data"});
    export_to(commas, {"--data", "--decimal-comma"});
    std::string expected = read_file(points.file("perf_torque.txt"));
    EXPECT_NE(expected.find('.'), std::string::npos);
    std::ranges::replace(expected, '.', ',');
    EXPECT_EQ(read_file(commas.file("perf_torque.txt")), expected);
    EXPECT_EQ(read_file(commas.file("inner.dxf")), read_file(points.file("inner.dxf")));
}

TEST(export_performance, that_is_refused_is_said_for_each_file) {
    const temporary_folder folder;
    const kvt_run run = export_to(folder, {"--data", "--workbook", "--set", "speed_hi="});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(performance_files_in(folder).empty());
    EXPECT_TRUE(fs::exists(folder.file("inner.dxf")));
    EXPECT_EQ(run.err, "Speed must be greater than for low speed setting\nperf_flow.txt" + NOTE +
                           "perf_torque.txt" + NOTE + "perf_contact.txt" + NOTE +
                           "perf_efficiency.txt" + NOTE + "perf_volumetric.txt" + NOTE +
                           "perf.xlsx" + NOTE);
}

TEST(export_performance, that_is_refused_is_written_as_zeros_by_force) {
    const temporary_folder folder;
    const kvt_run run = export_to(folder, {"--data", "--force", "--set", "speed_hi="});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(performance_files_in(folder), DATA_FILES);
    const std::vector<std::string> lines = split_lines(read_file(folder.file("perf_torque.txt")));
    ASSERT_EQ(lines.size(), 3U + 36U + 2U);
    for (std::size_t row = 0; row < 36; ++row) {
        EXPECT_EQ(lines[3 + row], "0;0;0;0");
    }
}

TEST(export_performance, by_force_does_not_make_a_refused_design_a_good_one) {
    const temporary_folder folder;
    const kvt_run run = export_to(folder, {"--data", "--force", "--set", "ecc=0"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(performance_files_in(folder), DATA_FILES);
    EXPECT_FALSE(fs::exists(folder.file("inner.dxf")));
}

TEST(export_performance, by_force_has_no_results_of_a_run_that_failed) {
    const temporary_folder folder;
    const std::string without_inlet = "inlet_end_outer=12";
    const kvt_run run = export_to(folder, {"--data", "--set", without_inlet});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.err.starts_with("Run-time error 5: ")) << run.err;
    EXPECT_TRUE(performance_files_in(folder).empty());
    EXPECT_EQ(export_to(folder, {"--data", "--force", "--set", without_inlet}).status, 1);
    EXPECT_EQ(split_lines(read_file(folder.file("perf_flow.txt"))).at(3), "0;0;0")
        << "the grid stood already when the run failed";
}

}  // namespace
}  // namespace kvt
