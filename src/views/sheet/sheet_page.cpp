#include "views/sheet/sheet_page.hpp"

#include "base/utf8_text.hpp"

#include <utility>

namespace kvt {

namespace {

constexpr double LINE_SPACING = 1.2;
constexpr std::string_view ELLIPSIS = "…";

/// The words of a text between its blanks and line breaks.
std::vector<std::string> words_of(std::string_view text) {
    std::vector<std::string> words;
    for (std::size_t from = text.find_first_not_of(" \r\n"); from != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(" \r\n", from), text.size());
        words.emplace_back(text.substr(from, end - from));
        from = text.find_first_not_of(" \r\n", end);
    }
    return words;
}

}  // namespace

bool overlap(const sheet_box& a, const sheet_box& b) {
    return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

double line_height(const sheet_font& font) {
    return font.points * MM_PER_POINT * LINE_SPACING;
}

page_path straight_line(const point2& from, const point2& to, const sheet_pen& pen) {
    return {{from, to}, pen, std::nullopt};
}

page_path rectangle(const sheet_box& box, const sheet_pen& pen) {
    return {{{box.left, box.top},
             {box.right(), box.top},
             {box.right(), box.bottom()},
             {box.left, box.bottom()},
             {box.left, box.top}},
            pen,
            std::nullopt};
}

std::string fitted_text(std::string text, double width, const sheet_font& font,
                        const sheet_metrics& metrics) {
    if (metrics(text, font) <= width) {
        return text;
    }
    while (!text.empty() && metrics(text + std::string(ELLIPSIS), font) > width) {
        drop_last_character(text);
    }
    return text + std::string(ELLIPSIS);
}

std::vector<std::string> wrapped_text(std::string_view text, double width, const sheet_font& font,
                                      const sheet_metrics& metrics) {
    std::vector<std::string> lines;
    for (const std::string& word : words_of(text)) {
        if (!lines.empty() && metrics(lines.back() + " " + word, font) <= width) {
            lines.back() += " " + word;
        } else {
            lines.push_back(fitted_text(word, width, font, metrics));
        }
    }
    return lines;
}

double add_lines(sheet_page& page, const std::vector<std::string>& lines, const sheet_box& box,
                 const sheet_font& font, sheet_alignment alignment) {
    double top = box.top;
    for (const std::string& line : lines) {
        page.texts.push_back(
            {{box.left, top, box.width, line_height(font)}, line, font, alignment});
        top += line_height(font);
    }
    return top;
}

}  // namespace kvt
