// Windows-1252 both ways.
#include "base/code_page.hpp"

#include "support/property_runs.hpp"

#include <gtest/gtest.h>
#include <string>

namespace kvt {

namespace {

struct pair_case {
    const char* bytes;
    const char* utf8;
};

constexpr pair_case PAIRS[] = {
    {"", ""},
    {"Rotor 7 ~", "Rotor 7 ~"},
    {"\xE4\xF6\xFC\xC4\xD6\xDC\xDF", "äöüÄÖÜß"},
    {"\x80", "€"},
    {"\x8A\x9A\x8E\x9E\x9F", "ŠšŽžŸ"},
    {"\x84q\x93", "„q“"},
    {"\x96\x97\x85\x99", "–—…™"},
    {"\xA0\xB0\xFF", "\u00A0°ÿ"},
    {"\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D"},
};

TEST(code_page, has_the_character_of_each_byte) {
    for (const pair_case& expected : PAIRS) {
        EXPECT_EQ(utf8_of_code_page(expected.bytes), expected.utf8);
    }
}

TEST(code_page, has_the_byte_of_each_character) {
    for (const pair_case& expected : PAIRS) {
        EXPECT_EQ(code_page_of_utf8(expected.utf8), expected.bytes);
        EXPECT_TRUE(fits_code_page(expected.utf8)) << expected.utf8;
    }
}

TEST(code_page, keeps_all_256_byte_values_through_a_round_trip) {
    std::string bytes;
    for (int number = 0; number < 256; ++number) {
        bytes += static_cast<char>(number);
    }
    const std::string text = utf8_of_code_page(bytes);
    EXPECT_EQ(code_page_of_utf8(text), bytes);
    EXPECT_TRUE(fits_code_page(text));
    // 128 of one byte; 96 + 5 of two bytes in Latin-1; of the table's other 27, ten lie below
    // U+0800.
    EXPECT_EQ(text.size(), 128u + 2 * (96 + 5 + 10) + 3 * 17);
}

TEST(code_page, gives_a_question_mark_for_a_character_it_does_not_hold) {
    for (const char* text : {"Ω", "→", "漢", "\U0001F600", "\u0080", "\u0085", "\u009F"}) {
        EXPECT_EQ(code_page_of_utf8(std::string("a") + text + "b"), "a?b") << text;
        EXPECT_FALSE(fits_code_page(std::string("a") + text + "b")) << text;
    }
}

TEST(code_page, gives_a_question_mark_for_a_broken_sequence) {
    const pair_case broken[] = {
        {"?", "\xC3"},  // the end of the text
        {"?b",
         "\xC3"
         "b"},                          // a letter inside
        {"?\xE4", "\xE2\x82\xC3\xA4"},  // a new sequence inside
        {"?", "\x80"},                  // no lead byte
        {"?", "\xC0\x80"},              // too long a form of 0
        {"?", "\xE0\x82\xA0"},          // too long a form of A0
        {"?", "\xED\xA0\x80"},          // a surrogate
        {"?", "\xF4\x90\x80\x80"},      // above 10FFFF
        {"?", "\xFF"},
    };
    for (const pair_case& expected : broken) {
        EXPECT_EQ(code_page_of_utf8(expected.utf8), expected.bytes);
        EXPECT_FALSE(fits_code_page(expected.utf8));
    }
}

TEST(code_page, never_loses_a_text_that_it_says_fits) {
    random_values random;
    int fitting_count = 0;
    for (int left = property_count(20000); left > 0; --left) {
        const std::string text = random.text("a\xC3\xA4\xE2\x82\xAC\x80\xF0\xFF", 5);
        if (fits_code_page(text)) {
            EXPECT_EQ(utf8_of_code_page(code_page_of_utf8(text)), text);
            ++fitting_count;
        }
    }
    EXPECT_GT(fitting_count, 0);
}

}  // namespace

}  // namespace kvt
