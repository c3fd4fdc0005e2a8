// Lines in memory, and the three line ends.
#include "base/text_file.hpp"

#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kvt {

namespace {

using lines = std::vector<std::string>;

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

}  // namespace

}  // namespace kvt
