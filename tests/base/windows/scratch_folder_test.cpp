#include "base/scratch_folder.hpp"

#include "base/whole_file.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(scratch_folder, is_empty_one_of_its_own_and_goes_with_what_it_holds) {
    std::filesystem::path gone;
    {
        const scratch_folder one;
        const scratch_folder other;
        gone = one.path();
        EXPECT_NE(one.path(), other.path());
        EXPECT_TRUE(std::filesystem::is_empty(one.path()));
        write_file(one.path() / "file", "text");
    }
    EXPECT_FALSE(std::filesystem::exists(gone));
}

}  // namespace
}  // namespace kvt
