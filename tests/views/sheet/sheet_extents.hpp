// What the texts of a page cover, for tests of the design sheet.
#pragma once

#include "base/utf8_text.hpp"
#include "views/sheet/design_sheet.hpp"

#include <string>
#include <vector>

namespace kvt {

/// Every character is 0.55 of the size wide, a little more than letters are on average.
inline double even_width(std::string_view text, const sheet_font& font) {
    return 0.55 * font.points * MM_PER_POINT * static_cast<double>(character_count(text));
}

inline sheet_paper a4_paper() {
    return {{210.0, 297.0}, even_width};
}
inline sheet_paper letter_paper() {
    return {{215.9, 279.4}, even_width};
}

/// Where the letters of a text stand.
inline sheet_box extent_of(const page_text& text, const sheet_metrics& metrics) {
    const double width = metrics(text.text, text.font);
    const double height = line_height(text.font);
    double left = text.box.left;
    if (text.alignment == sheet_alignment::right) {
        left = text.box.right() - width;
    } else if (text.alignment == sheet_alignment::centre) {
        left = text.box.middle().x - width / 2.0;
    }
    return {left, text.box.middle().y - height / 2.0, width, height};
}

/// Boxes that share more than rounding.
inline bool overlap_clearly(const sheet_box& a, const sheet_box& b) {
    constexpr double ROUNDING = 0.05;
    return overlap(
        {a.left + ROUNDING, a.top + ROUNDING, a.width - 2.0 * ROUNDING, a.height - 2.0 * ROUNDING},
        b);
}

/// Which texts of a page leave the paper's margin or lie over others, one line each.
inline std::vector<std::string> misplaced_texts(const sheet_page& page, const sheet_paper& paper) {
    constexpr double LEAST_MARGIN = 8.0;
    const sheet_box inside{LEAST_MARGIN, LEAST_MARGIN, paper.size.width - 2.0 * LEAST_MARGIN,
                           paper.size.height - 2.0 * LEAST_MARGIN};
    std::vector<std::string> findings;
    std::vector<sheet_box> boxes;
    for (const page_text& text : page.texts) {
        const sheet_box box = extent_of(text, paper.metrics);
        if (!text.text.empty() && (box.left < inside.left || box.right() > inside.right() ||
                                   box.top < inside.top || box.bottom() > inside.bottom())) {
            findings.push_back("off the page: " + text.text);
        }
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            if (overlap_clearly(box, boxes[i])) {
                findings.push_back(text.text + " over " + page.texts[i].text);
            }
        }
        boxes.push_back(box);
    }
    return findings;
}

/// Which paths of a page leave the paper's margin.
inline std::size_t paths_outside(const sheet_page& page, const sheet_paper& paper) {
    constexpr double LEAST_MARGIN = 8.0;
    std::size_t count = 0;
    for (const page_path& path : page.paths) {
        for (const point2& point : path.points) {
            if (point.x < LEAST_MARGIN || point.x > paper.size.width - LEAST_MARGIN ||
                point.y < LEAST_MARGIN || point.y > paper.size.height - LEAST_MARGIN) {
                ++count;
                break;
            }
        }
    }
    return count;
}

}  // namespace kvt
