// Every caption and message of both languages, letter for letter: the table as a text beside the
// golden file texts.txt.
#include "core/text_table.hpp"
#include "support/golden_files.hpp"

#include <gtest/gtest.h>
#include <string>

namespace kvt {
namespace {

std::string kind_name(text_kind kind) {
    switch (kind) {
        case text_kind::message:
            return "message";
        case text_kind::caption:
            return "caption";
        case text_kind::design_caption:
            return "design_caption";
        case text_kind::caption_mm:
            return "caption_mm";
        case text_kind::caption_inch:
            return "caption_inch";
        case text_kind::fixed_caption:
            return "fixed_caption";
        case text_kind::spoken:
            return "spoken";
        case text_kind::tooltip:
            break;
    }
    return "tooltip";
}

/// In quotes, so that blanks at the end are seen, with line ends as \r and \n.
std::string quoted(std::string_view text) {
    std::string line = "\"";
    for (const char c : text) {
        if (c == '\r') {
            line += "\\r";
        } else if (c == '\n') {
            line += "\\n";
        } else {
            line += c;
        }
    }
    return line + "\"";
}

/// A row: kind and name, the English text, the German one where there is one.
std::string shown(const text_row& row) {
    const std::string place = row.form.empty()
                                  ? std::string(row.name)
                                  : std::string(row.form) + "." + std::string(row.name);
    std::string text = kind_name(row.kind) + " " + place + "\n  " + quoted(row.english) + "\n";
    if (row.languages == text_languages::both) {
        text += "  " + quoted(row.german) + "\n";
    }
    return text;
}

TEST(whole_text_table, says_every_text_letter_for_letter) {
    std::string whole;
    for (const text_row& row : text_rows()) {
        whole += shown(row);
    }
    expect_golden("texts.txt", whole);
}

}  // namespace
}  // namespace kvt
