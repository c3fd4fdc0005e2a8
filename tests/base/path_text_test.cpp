#include "base/path_text.hpp"

#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(path_of_utf8, is_read_back_as_the_same_text) {
    EXPECT_EQ(utf8_of_path(path_of_utf8("Prüfung Öl.KVT")), "Prüfung Öl.KVT");
    EXPECT_TRUE(path_of_utf8("").empty());
}

TEST(path_of_utf8, names_the_file_that_was_written) {
    const temporary_folder folder;
    write_file(folder / "Prüfung Öl.KVT", "text");
    ASSERT_FALSE(std::filesystem::is_empty(folder.path()));
    const std::filesystem::directory_iterator file(folder.path());
    EXPECT_TRUE(file->path().filename().u8string() == u8"Prüfung Öl.KVT");
    EXPECT_EQ(read_file(path_of_utf8(folder.file("Prüfung Öl.KVT"))), "text");
}

}  // namespace
}  // namespace kvt
