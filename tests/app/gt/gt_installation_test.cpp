#include "app/gt/gt_installation.hpp"

#include "support/expect_failure.hpp"
#include "support/gt_stand_in.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;

TEST(find_gt_tool, takes_the_first_name_that_can_be_executed) {
    const gt_stand_in package;
    const fs::path bin = package.home() / "bin";
    EXPECT_EQ(find_gt_tool(gt_tool::converter), bin / "gemc");
    EXPECT_EQ(find_gt_tool(gt_tool::editor), bin / "gtise");
    fs::copy_file(bin / "gemc", bin / "gemc.sh");
    std::ofstream(bin / "gemc.bat") << "not executable";
    EXPECT_EQ(find_gt_tool(gt_tool::converter), bin / "gemc.sh");
    fs::permissions(bin / "gemc.bat", fs::perms::owner_all);
    EXPECT_EQ(find_gt_tool(gt_tool::converter), bin / "gemc.bat");
}

TEST(gt_fluids_file, is_the_first_library_by_name) {
    gt_stand_in package;
    const fs::path folder = package.home() / "v2021/resrc/gtise";
    EXPECT_EQ(gt_fluids_file(2021), folder / "b.gto");
    std::ofstream(folder / "a.gto.old") << "";
    EXPECT_EQ(gt_fluids_file(2021), folder / "b.gto");
    std::ofstream(folder / "a.gto") << "";
    EXPECT_EQ(gt_fluids_file(2021), folder / "a.gto");
}

TEST(gt_fluids_file, is_nothing_without_its_folder_or_the_variable) {
    gt_stand_in package;
    EXPECT_EQ(gt_fluids_file(2020), std::nullopt);
    package.home_variable().set(std::nullopt);
    EXPECT_EQ(gt_fluids_file(2021), std::nullopt);
    EXPECT_FAILURE(gt_tools_folder(), failure::path_not_found);
}

}  // namespace
}  // namespace kvt
