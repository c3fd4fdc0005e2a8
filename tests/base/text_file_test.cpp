// Lines in memory, the three line ends, and files that are replaced whole or not at all.
#include "base/text_file.hpp"

#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace kvt {

namespace {

namespace fs = std::filesystem;
using lines = std::vector<std::string>;

std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

TEST(text_lines, ends_every_line_with_cr_lf) {
    text_lines text;
    text.line("mm");
    text.line("");
    text.raw_line(" 1 ");
    EXPECT_EQ(text.bytes(), "mm\r\n\r\n 1 \r\n");
}

TEST(text_lines, writes_code_page_bytes) {
    text_lines text;
    text.line("Größe");
    text.raw_line(
        "Gr\xF6\xDF"
        "e");
    EXPECT_EQ(text.bytes(),
              "Gr\xF6\xDF"
              "e\r\nGr\xF6\xDF"
              "e\r\n");
}

TEST(text_lines, refuses_a_line_end_inside_a_line) {
    text_lines text;
    EXPECT_FAILURE(text.line("a\nb"), failure::invalid_property_value);
    EXPECT_FAILURE(text.raw_line("a\r"), failure::invalid_property_value);
    EXPECT_EQ(text.bytes(), "");
}

TEST(text_lines, takes_a_line_piece_by_piece) {
    text_lines text;
    text.reserve(100);
    text.raw_part("X");
    text.raw_part("1.5");
    text.end_line();
    text.end_line();
    EXPECT_EQ(text.bytes(), "X1.5\r\n\r\n");
}

TEST(text_lines, drops_a_line_of_pieces_with_a_line_end_inside) {
    text_lines text;
    text.raw_line("kept");
    text.raw_part("a");
    text.raw_part("\r\nb");
    EXPECT_FAILURE(text.end_line(), failure::invalid_property_value);
    EXPECT_EQ(text.bytes(), "kept\r\n");
    text.raw_line("next");
    EXPECT_EQ(text.bytes(), "kept\r\nnext\r\n");
}

TEST(text_lines, takes_lines_of_a_template_with_their_ends) {
    text_lines text;
    text.raw_block(" 0\r\nSEQEND\r\n");
    text.raw_line("EOF");
    EXPECT_EQ(text.bytes(), " 0\r\nSEQEND\r\nEOF\r\n");
}

struct split_case {
    const char* bytes;
    lines expected;
};

TEST(split_lines, ends_a_line_at_cr_lf_lone_cr_and_lone_lf) {
    const split_case cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\r", {"a"}},
        {"a\n", {"a"}},
        {"\r\n", {""}},
        {"\n", {""}},
        {"\r\n\r\n", {"", ""}},
        {"\n\r", {"", ""}},
        {"\r\r\n", {"", ""}},
        {"a\r\nb\rc\nd", {"a", "b", "c", "d"}},
        {"a\n\nb", {"a", "", "b"}},
        {"a\r\n\nb\r\n", {"a", "", "b"}},
        {" a \t\r\n", {" a \t"}},
    };
    for (const split_case& c : cases) {
        EXPECT_EQ(split_lines(c.bytes), c.expected) << testing::PrintToString(c.bytes);
    }
}

TEST(split_lines, keeps_a_zero_byte) {
    EXPECT_EQ(split_lines(std::string_view("a\0b\r\n", 5)), lines{std::string("a\0b", 3)});
}

TEST(read_file, gives_back_every_byte_that_write_file_wrote) {
    const temporary_folder folder;
    std::string bytes;
    for (int i = 0; i < 200000; ++i) {
        bytes += static_cast<char>(i % 251);
    }
    write_file(folder / "a.KVT", bytes);
    EXPECT_EQ(read_file(folder / "a.KVT"), bytes);
}

TEST(read_file, names_what_is_missing) {
    const temporary_folder folder;
    EXPECT_FAILURE(read_file(""), failure::file_not_found);
    EXPECT_FAILURE(read_file(folder / "no.KVT"), failure::file_not_found);
    EXPECT_FAILURE(read_file(folder / "no/a.KVT"), failure::path_not_found);
    EXPECT_FAILURE(read_file(folder.path()), failure::path_file_access);
}

TEST(write_file, replaces_an_old_file_and_leaves_nothing_beside_it) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "a longer old text");
    write_file(folder / "a.KVT", "new");
    EXPECT_EQ(read_file(folder / "a.KVT"), "new");
    EXPECT_EQ(names_in(folder.path()), lines{"a.KVT"});
}

TEST(write_file, keeps_the_permissions_of_the_old_file) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "old");
    const fs::perms only_owner = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder / "a.KVT", only_owner);
    write_file(folder / "a.KVT", "new");
    EXPECT_EQ(fs::status(folder / "a.KVT").permissions(), only_owner);
}

TEST(write_file, writes_through_a_link_and_keeps_it) {
    const temporary_folder folder;
    fs::create_directory(folder / "real");
    write_file(folder / "real/a.KVT", "old");
    fs::create_symlink(folder / "real/a.KVT", folder / "link.KVT");
    write_file(folder / "link.KVT", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link.KVT"));
    EXPECT_EQ(read_file(folder / "real/a.KVT"), "new");
}

TEST(write_file, writes_to_a_device_without_replacing_it) {
    write_file("/dev/null", "text");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(write_file, fails_without_a_folder_and_leaves_nothing) {
    const temporary_folder folder;
    EXPECT_FAILURE(write_file(folder / "no/a.KVT", "text"), failure::path_not_found);
    EXPECT_FAILURE(write_file("", "text"), failure::path_file_access);
    EXPECT_EQ(names_in(folder.path()), lines{});
}

TEST(write_file, fails_on_a_folder_and_leaves_it) {
    const temporary_folder folder;
    fs::create_directory(folder / "a.KVT");
    EXPECT_FAILURE(write_file(folder / "a.KVT", "text"), failure::path_file_access);
    EXPECT_EQ(names_in(folder.path()), lines{"a.KVT"});
    EXPECT_TRUE(fs::is_directory(folder / "a.KVT"));
}

TEST(write_file, fails_when_the_device_takes_no_more) {
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    EXPECT_FAILURE(write_file("/dev/full", "text"), failure::path_file_access);
}

TEST(write_file, leaves_a_foreign_temporary_file_alone) {
    const temporary_folder folder;
    std::ofstream(folder / ".kvt-0.tmp") << "of another program";
    write_file(folder / "a.KVT", "new");
    EXPECT_EQ(read_file(folder / ".kvt-0.tmp"), "of another program");
    EXPECT_EQ(read_file(folder / "a.KVT"), "new");
}

}  // namespace

}  // namespace kvt
