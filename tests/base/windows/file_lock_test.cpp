#include "base/file_lock.hpp"

#include "base/system_file.hpp"
#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(file_lock, is_held_by_one_and_free_again_when_it_goes_with_its_file) {
    const temporary_folder folder;
    {
        const auto first = file_lock::take(folder / "a.lock");
        ASSERT_TRUE(first);
        EXPECT_FALSE(file_lock::take(folder / "a.lock"));
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "a.lock"));
    EXPECT_TRUE(file_lock::take(folder / "a.lock"));
}

TEST(file_lock, keeps_nobody_from_reading_the_file) {
    const temporary_folder folder;
    write_file(folder / "a", "text");
    const descriptor file = open_file(folder / "a", {.access = file_access::both});
    ASSERT_EQ(try_lock(file), lock_answer::taken);
    EXPECT_EQ(read_file(folder / "a"), "text");
}

TEST(is_at, tells_an_open_file_from_another_of_its_name) {
    const temporary_folder folder;
    write_file(folder / "a", "1");
    write_file(folder / "b", "2");
    const descriptor file = open_file(folder / "a", {});
    EXPECT_TRUE(is_at(file, folder / "a"));
    EXPECT_FALSE(is_at(file, folder / "b"));
    EXPECT_FALSE(is_at(file, folder / "c"));
}

}  // namespace
}  // namespace kvt
