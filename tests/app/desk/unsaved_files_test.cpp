// The names and locks of the files with unsaved entries.
#include "app/desk/unsaved_files.hpp"

#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace kvt {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> found(const temporary_folder& folder) {
    std::vector<std::string> names;
    for (const left_file& left : find_left_files(folder.path())) {
        names.push_back(utf8_of_path(left.file.path.filename()));
    }
    std::ranges::sort(names);
    return names;
}

TEST(unsaved_files, take_the_first_number_without_a_file_and_without_a_holder) {
    const temporary_folder folder;
    write_file(folder / "autosave-2.KVT", "");
    const auto first = hold_new_file(folder.path(), AUTOSAVE_NAME);
    const auto second = hold_new_file(folder.path(), AUTOSAVE_NAME);
    const auto other = hold_new_file(folder.path(), RECOVERY_NAME);
    ASSERT_TRUE(first && second && other);
    EXPECT_EQ(first->path, folder / "autosave.KVT");
    EXPECT_EQ(second->path, folder / "autosave-3.KVT");
    EXPECT_EQ(other->path, folder / "recovery.KVT");
}

TEST(unsaved_files, have_no_name_without_a_folder) {
    const temporary_folder folder;
    EXPECT_FALSE(hold_new_file(folder / "none", AUTOSAVE_NAME));
}

TEST(unsaved_files, are_found_by_their_names_alone) {
    const temporary_folder folder;
    for (const char* name : {"autosave.KVT", "recovery-17.KVT", "autosave-.KVT", "autosave2.KVT",
                             "autosave-a.KVT", "autosave.kvt.bak", "my autosave.KVT"}) {
        write_file(folder / name, "");
    }
    EXPECT_EQ(found(folder), (std::vector<std::string>{"autosave.KVT", "recovery-17.KVT"}));
}

TEST(unsaved_files, are_not_found_while_somebody_holds_them) {
    const temporary_folder folder;
    auto held = hold_new_file(folder.path(), AUTOSAVE_NAME);
    write_file(held->path, "");
    EXPECT_TRUE(found(folder).empty());
    held.reset();
    EXPECT_EQ(found(folder).size(), 1U);
    EXPECT_FALSE(fs::exists(folder / "autosave.lock"));
}

TEST(unsaved_files, that_can_not_be_read_say_why_and_stay) {
    const temporary_folder folder;
    fs::create_directory(folder / "recovery.KVT");
    write_file(folder / "autosave-2.KVT", std::string(LARGEST_TEXT + 1, 'x'));
    const std::vector<left_file> files = find_left_files(folder.path());
    EXPECT_EQ(files.size(), 2U);
    for (const left_file& left : files) {
        EXPECT_FALSE(left.record);
        ASSERT_TRUE(left.unreadable);
        EXPECT_EQ(left.unreadable->kind(), failure::path_file_access);
        EXPECT_TRUE(fs::exists(left.file.path));
    }
}

TEST(unsaved_files, are_deleted_with_their_lock) {
    const temporary_folder folder;
    auto held = hold_new_file(folder.path(), AUTOSAVE_NAME);
    write_file(held->path, "");
    delete_file(std::move(*held));
    held.reset();
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace kvt
