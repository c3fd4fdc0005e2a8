#include "app/gt/gt_folders.hpp"

#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;

TEST(gt_folders, are_made) {
    const temporary_folder home;
    const gt_folders folders = gt_folders_of(home.path());
    prepare_gt_folders(folders);
    EXPECT_TRUE(fs::is_directory(home / "GT_files"));
    EXPECT_TRUE(fs::is_directory(home / "KVT_GT_temp"));
}

TEST(gt_folders, are_emptied_of_plain_files_alone_and_results_stay) {
    const temporary_folder home;
    const gt_folders folders = gt_folders_of(home.path());
    prepare_gt_folders(folders);
    fs::create_directory(folders.gt_temp_dir / "below");
    for (const fs::path& file :
         {folders.gt_temp_dir / "a", folders.gt_temp_dir / "below/b", folders.results / "c"}) {
        write_file(file, "x");
    }
    prepare_gt_folders(folders);
    EXPECT_FALSE(fs::exists(folders.gt_temp_dir / "a"));
    EXPECT_TRUE(fs::exists(folders.gt_temp_dir / "below/b"));
    EXPECT_EQ(file_names(folders.results), std::vector<std::string>{"c"});
}

TEST(gt_folders, that_cannot_be_made_are_a_failure) {
    const temporary_folder home;
    write_file(home / "file", "x");
    EXPECT_FAILURE(prepare_gt_folders(gt_folders_of(home / "file")), failure::path_not_found);
    EXPECT_FAILURE(file_names(home / "none"), failure::path_not_found);
}

TEST(gt_folders, take_no_name_that_leads_elsewhere) {
    EXPECT_EQ(named_file("a", "A & B \"C\".gtm"), fs::path("a") / "A & B \"C\".gtm");
    EXPECT_FAILURE(named_file("a", "../b.gtm"), failure::invalid_property_value);
    EXPECT_FAILURE(named_file("a", "/b.gtm"), failure::invalid_property_value);
}

}  // namespace
}  // namespace kvt
