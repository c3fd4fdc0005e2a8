// Tests of files on this system: replaced as a whole or not at all.
#include "base/whole_file.hpp"

#include "base/file_lock.hpp"
#include "base/system_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

namespace fs = std::filesystem;

struct files : testing::Test {
    temporary_folder folder;
    std::size_t count() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
    }
};

TEST_F(files, are_written_byte_for_byte) {
    const std::string bytes("line\r\nline\n\x1a\0end", 15);
    write_file(folder / "a.txt", bytes);
    EXPECT_EQ(read_file(folder / "a.txt"), bytes);
    EXPECT_EQ(fs::file_size(folder / "a.txt"), bytes.size());
    EXPECT_EQ(count(), 1U) << "no temporary file is left";
}

TEST_F(files, that_another_program_has_open_stay_as_they_are) {
    write_file(folder / "a.txt", "old");
    const descriptor reader = open_file(folder / "a.txt", {});
    ASSERT_TRUE(reader.is_open());
    EXPECT_FAILURE(write_file(folder / "a.txt", "new"), failure::path_file_access);
    EXPECT_EQ(read_file(folder / "a.txt"), "old");
    EXPECT_EQ(count(), 1U) << "no temporary file is left";
}

TEST_F(files, left_over_by_a_killed_program_are_removed_and_locked_ones_stay) {
    write_at_start(folder / ".kvt-7.tmp", "left over");
    write_at_start(folder / ".kvt-8.tmp", "being written");
    const descriptor writer = open_file(folder / ".kvt-8.tmp", {.access = file_access::both});
    ASSERT_EQ(try_lock(writer), lock_answer::taken);
    write_file(folder / "a.txt", "new");
    EXPECT_FALSE(fs::exists(folder / ".kvt-7.tmp"));
    EXPECT_TRUE(fs::exists(folder / ".kvt-8.tmp"));
}

TEST_F(files, that_are_missing_or_no_files_fail_with_their_kind) {
    EXPECT_FAILURE(read_file(folder / "none.txt"), failure::file_not_found);
    EXPECT_FAILURE(read_file(folder / "none/a.txt"), failure::path_not_found);
    EXPECT_FAILURE(read_file(folder.path()), failure::path_file_access);
    EXPECT_FAILURE(write_file(folder.path(), ""), failure::path_file_access);
}

TEST_F(files, are_written_from_their_start_or_anew) {
    write_at_start(folder / "a.txt", "0123456789");
    write_at_start(folder / "a.txt", "abc");
    EXPECT_EQ(read_file(folder / "a.txt"), "abc3456789");
    write_in_place(folder / "a.txt", "xyz");
    EXPECT_EQ(read_file(folder / "a.txt"), "xyz");
}

}  // namespace
}  // namespace kvt
