#include "app/gt/gt_folders.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(gt_folders, are_closed_to_others) {
    const temporary_folder home;
    prepare_gt_folders(gt_folders_of(home.path()));
    EXPECT_EQ(std::filesystem::status(home / "KVT_GT_temp").permissions(),
              std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace kvt
