// sheet_page: a page of the design sheet as plain data. A painter only fills, strokes and writes
// it. Lengths are millimetres from the paper's upper left corner, y down; sizes of letters are
// points.
#pragma once

#include "geometry/point2.hpp"
#include "views/rgb_colour.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

struct sheet_size {
    double width = 0.0, height = 0.0;
};

struct sheet_box {
    double left = 0.0, top = 0.0, width = 0.0, height = 0.0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }
    point2 middle() const { return {left + width / 2.0, top + height / 2.0}; }
};

/// Whether two boxes share more than an edge.
bool overlap(const sheet_box& a, const sheet_box& b);

enum class sheet_dashes { solid, dotted, dashed, dash_dotted };

struct sheet_pen {
    rgb_colour colour;
    double width = 0.2;
    sheet_dashes dashes = sheet_dashes::solid;
};

/// A polyline, or the area within it. It is filled first.
struct page_path {
    std::vector<point2> points;
    std::optional<sheet_pen> pen;
    std::optional<rgb_colour> fill;
};

struct sheet_font {
    double points = 8.0;
    bool is_bold = false;
};

enum class sheet_alignment { left, right, centre };

/// One line, in the middle of its box's height.
struct page_text {
    sheet_box box;
    std::string text;
    sheet_font font;
    sheet_alignment alignment = sheet_alignment::left;
};

/// Paths below texts, each in their order.
struct sheet_page {
    std::vector<page_path> paths;
    std::vector<page_text> texts;
};

/// The width of a text, mm.
using sheet_metrics = std::function<double(std::string_view text, const sheet_font& font)>;

inline constexpr double MM_PER_POINT = 25.4 / 72.0;
inline constexpr rgb_colour SHEET_BLACK = {0, 0, 0};
inline constexpr rgb_colour SHEET_GREY = {150, 150, 150};

/// The height of a line of text, mm: 1.2 times its letters.
double line_height(const sheet_font& font);

page_path straight_line(const point2& from, const point2& to, const sheet_pen& pen);
page_path rectangle(const sheet_box& box, const sheet_pen& pen);

/// The words of a text in lines that are no wider than `width`. A single word that is wider is cut
/// and ends in an ellipsis.
std::vector<std::string> wrapped_text(std::string_view text, double width, const sheet_font& font,
                                      const sheet_metrics& metrics);
/// The text, or its longest beginning with an ellipsis behind it that is no wider.
std::string fitted_text(std::string text, double width, const sheet_font& font,
                        const sheet_metrics& metrics);

/// Adds the lines of a text one below the other from the top of a box; answers where they end.
double add_lines(sheet_page& page, const std::vector<std::string>& lines, const sheet_box& box,
                 const sheet_font& font, sheet_alignment alignment = sheet_alignment::left);

}  // namespace kvt
