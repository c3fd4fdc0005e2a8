#include "gtsuite/model_text.hpp"

#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(model_text, keeps_every_byte_of_a_file) {
    for (const std::string bytes : {"", "\n", "\r\n", "a", "a\n", "a\r\nb\r\n", "a\r\nb",
                                    "a\nb\r\n", "\xEF\xBB\xBF<a>\n\n\n", "a\n\rb\n", "\n\n"}) {
        EXPECT_EQ(model_bytes(read_model_text(bytes)), bytes) << testing::PrintToString(bytes);
    }
}

TEST(model_text, takes_the_encoding_from_the_declaration) {
    const auto encoding = [](const std::string& head) { return read_model_text(head).encoding; };
    EXPECT_EQ(encoding("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"), model_encoding::utf8);
    EXPECT_EQ(encoding("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n"), model_encoding::utf8);
    EXPECT_EQ(encoding("<gtm encoding=\"other\">\n"), model_encoding::utf8);
    EXPECT_EQ(encoding("<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n"),
              model_encoding::code_page);
}

TEST(model_text, escapes_the_four_characters_of_an_attribute_and_reads_them_back) {
    const std::string text = "A & B \"C\" <D> ö";
    const std::string escaped = "A &amp; B &quot;C&quot; &lt;D&gt; ";
    EXPECT_EQ(attribute_text(text, model_encoding::utf8), escaped + "ö");
    EXPECT_EQ(attribute_text(text, model_encoding::code_page), escaped + "\xF6");
    EXPECT_EQ(text_of_attribute(escaped + "ö", model_encoding::utf8), text);
    EXPECT_EQ(text_of_attribute(escaped + "\xF6", model_encoding::code_page), text);
    EXPECT_EQ(text_of_attribute("&amp;lt; &x", model_encoding::utf8), "&lt; &x");
}

TEST(model_text, finds_attributes_by_their_whole_name) {
    const std::string line = "<link name_start=\"a\" name=\"b\" id=\"l12\" x=\"open";
    EXPECT_EQ(attribute(line, "name"), "b");
    EXPECT_EQ(attribute(line, "x"), std::nullopt);
    EXPECT_EQ(attribute(line, "start"), std::nullopt);
    EXPECT_EQ(attribute_number(line, "id", 'l'), 12);
    EXPECT_EQ(attribute_number(line, "id", 'p'), 0);
}

TEST(model_text, compares_anchors_without_the_blanks_behind_them) {
    const model_lines lines = {"  <a>", "    <a> \t", "    <a>", "    <b axis=\"1\">"};
    EXPECT_EQ(anchor_line(lines, "    <a>"), 1U);
    EXPECT_EQ(anchor_line_beginning(lines, "    <b axis"), 3U);
    EXPECT_FAILURE(anchor_line(lines, "   <a>"), failure::input_past_end);
    EXPECT_FAILURE(anchor_line_beginning(lines, "<b"), failure::input_past_end);
}

TEST(model_text, finds_an_object_by_its_attribute_at_any_indent) {
    const model_lines lines = {"<object id=\"o1\" name=\"a\">", "</object>",
                               "      <object id=\"o2\" name=\"b\">", "x", "      </object>"};
    const auto found = find_object(lines, "name", "b");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->first, 2U);
    EXPECT_EQ(found->last, 4U);
    EXPECT_EQ(find_object(lines, "id", "o2")->first, 2U);
    EXPECT_FALSE(find_object(lines, "name", "c"));
    EXPECT_FALSE(find_object({"<object id=\"o1\" name=\"a\">"}, "name", "a")) << "no end";
    EXPECT_FALSE(find_object({"<object id=\"o1\" name=\"a\"/>", "</object>"}, "name", "a"));
}

TEST(model_text, replaces_values_of_an_object_and_adds_what_is_missing) {
    model_lines lines = {"<object id=\"o1\" name=\"a\">",
                         "<value>",
                         "  <va a_id=\"7\" text=\"x\" unitID=\"1\"/>",
                         " </value>",
                         "</object>",
                         "<va a_id=\"8\" text=\"of another\" unitID=\"0\"/>"};
    const std::vector<object_value> values = {{8, "new", 2}, {7, "set", 3}, {9, "last", 0}};
    EXPECT_EQ(set_values(lines, {0, 4}, values), 3);
    EXPECT_EQ(lines, (model_lines{"<object id=\"o1\" name=\"a\">", "<value>",
                                  "                <va a_id=\"7\" text=\"set\" unitID=\"3\"/>",
                                  "                <va a_id=\"8\" text=\"new\" unitID=\"2\"/>",
                                  "                <va a_id=\"9\" text=\"last\" unitID=\"0\"/>",
                                  " </value>", "</object>",
                                  "<va a_id=\"8\" text=\"of another\" unitID=\"0\"/>"}));
    model_lines no_value = {"<object id=\"o1\" name=\"a\">", "</object>"};
    EXPECT_EQ(set_values(no_value, {0, 1}, values), 0);
}

}  // namespace
}  // namespace kvt
