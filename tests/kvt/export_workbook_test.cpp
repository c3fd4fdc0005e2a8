// Tests of kvt export --workbook, where the program is built with its library.
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;

kvt_run export_workbook_to(const temporary_folder& folder, std::vector<std::string> options) {
    options.insert(options.begin(), {"export", example("engine_oil"), "--out",
                                     utf8_of_path(folder.path()), "--workbook"});
    return run_kvt(options);
}

TEST(export_workbook, writes_the_workbook_alone) {
    const temporary_folder folder;
    const kvt_run run = export_workbook_to(folder, {"--dxf", "inner"});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(fs::exists(folder.path() / "perf.xlsx"));
    EXPECT_FALSE(fs::exists(folder.path() / "perf_flow.txt"));
    EXPECT_TRUE(run.out.ends_with(folder.file("perf.xlsx") + "\n"));
}

TEST(export_workbook, of_a_refused_performance_is_written_by_force) {
    const temporary_folder folder;
    const kvt_run run = export_workbook_to(folder, {"--force", "--set", "speed_hi="});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(fs::exists(folder.path() / "perf.xlsx"));
}

TEST(export_workbook, that_can_not_be_saved_is_told) {
    const temporary_folder folder;
    fs::create_directory(folder.path() / "perf.xlsx");
    const kvt_run run = export_workbook_to(folder, {});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(folder.file("perf.xlsx") + ": Run-time error 75: "), std::string::npos)
        << run.err;
}

}  // namespace
}  // namespace kvt
