// Tests of the parts of a page: lines of text, wrapped and cut.
#include "views/sheet/sheet_page.hpp"

#include "views/sheet/sheet_extents.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

/// One millimetre a character.
double one_mm(std::string_view text, const sheet_font&) {
    return static_cast<double>(character_count(text));
}

texts wrapped(std::string_view text, double width) {
    return wrapped_text(text, width, {}, one_mm);
}

TEST(sheet_page, wraps_between_words) {
    EXPECT_EQ(wrapped("one two three", 7.0), (texts{"one two", "three"}));
    EXPECT_EQ(wrapped("one two three", 6.9), (texts{"one", "two", "three"}));
    EXPECT_EQ(wrapped("  one  two ", 20.0), (texts{"one two"}));
    EXPECT_EQ(wrapped("line\rbreak\n", 20.0), (texts{"line break"}));
    EXPECT_EQ(wrapped("", 20.0), texts{});
}

TEST(sheet_page, cuts_a_word_that_is_too_wide) {
    EXPECT_EQ(wrapped("an Umfangsgeschwindigkeit", 8.0), (texts{"an", "Umfangs…"}));
    EXPECT_EQ(fitted_text("Läppchen", 8.0, {}, one_mm), "Läppchen");
    EXPECT_EQ(fitted_text("Läppchen", 4.0, {}, one_mm), "Läp…") << "whole letters";
    EXPECT_EQ(fitted_text("abc", 0.5, {}, one_mm), "…");
}

TEST(sheet_page, puts_lines_below_each_other) {
    sheet_page page;
    const sheet_font font{10.0, true};
    const double end =
        add_lines(page, {"a", "b"}, {5.0, 20.0, 30.0, 0.0}, font, sheet_alignment::right);
    ASSERT_EQ(page.texts.size(), 2U);
    EXPECT_DOUBLE_EQ(line_height(font), 10.0 * 25.4 / 72.0 * 1.2);
    EXPECT_DOUBLE_EQ(page.texts[0].box.top, 20.0);
    EXPECT_DOUBLE_EQ(page.texts[1].box.top, 20.0 + line_height(font));
    EXPECT_DOUBLE_EQ(end, 20.0 + 2.0 * line_height(font));
    EXPECT_EQ(page.texts[1].alignment, sheet_alignment::right);
    EXPECT_TRUE(page.texts[1].font.is_bold);
    EXPECT_DOUBLE_EQ(page.texts[1].box.right(), 35.0);
}

TEST(sheet_page, rectangles_close) {
    const page_path frame = rectangle({1.0, 2.0, 3.0, 4.0}, {});
    ASSERT_EQ(frame.points.size(), 5U);
    EXPECT_EQ(frame.points.front(), frame.points.back());
    EXPECT_EQ(frame.points[2], (point2{4.0, 6.0}));
    EXPECT_FALSE(frame.fill);
}

}  // namespace
}  // namespace kvt
