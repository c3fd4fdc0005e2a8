#include "output/report/pdf_printer.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/utf8_text.hpp"
#include "output/report/columned_line.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

// Points, 1/72 inch.
constexpr double PAGE_WIDTH = 595.0;
constexpr double PAGE_HEIGHT = 842.0;
constexpr double MARGIN = 50.0;
constexpr double CHARACTER_WIDTH = 0.6;  // of the size
constexpr double LINE_HEIGHT = 1.2;      // of the size

// The objects in front of the pages, and the two that each page takes.
constexpr std::size_t CATALOG = 1;
constexpr std::size_t PAGE_TREE = 2;
constexpr std::size_t FONT = 3;

std::size_t page_object(std::size_t page) {
    return FONT + 1 + 2 * page;
}

std::string text_of(std::size_t number) {
    return number_text(static_cast<double>(number));
}

/// Two decimals at most, never an exponent.
std::string coordinate(double points) {
    return number_text(std::nearbyint(points * 100.0) / 100.0);
}

std::string reference(std::size_t object) {
    return text_of(object) + " 0 R";
}

/// A literal string: "(...)" with its own marks escaped.
std::string literal(std::string_view bytes) {
    std::string text = "(";
    for (const char c : bytes) {
        if (c == '(' || c == ')' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
    return text + ")";
}

/// Percent of its width in which a line is drawn, so that it fits between the margins.
double width_percent(std::size_t characters, double points) {
    const double width = static_cast<double>(characters) * CHARACTER_WIDTH * points;
    return std::min(100.0, (PAGE_WIDTH - 2.0 * MARGIN) / std::max(width, 1.0) * 100.0);
}

/// One line: font and size, horizontal scaling, position of its base line, text.
std::string drawn_line(std::string_view utf8, double points, double y) {
    return "BT /F1 " + coordinate(points) + " Tf " +
           coordinate(width_percent(character_count(utf8), points)) + " Tz " + coordinate(MARGIN) +
           " " + coordinate(y) + " Td " + literal(code_page_of_utf8(utf8)) + " Tj ET\n";
}

/// The body of a PDF file: each object notes where it begins, for the table at the end.
class pdf_objects {
  public:
    void add(const std::string& content) {
        starts_.push_back(bytes_.size());
        bytes_ += text_of(starts_.size()) + " 0 obj\n" + content + "\nendobj\n";
    }

    std::string file() const {
        const std::string count = text_of(starts_.size() + 1);
        std::string table = "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const std::size_t start : starts_) {
            const std::string digits = text_of(start);
            table += std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
        }
        return bytes_ + table + "trailer\n<< /Size " + count + " /Root " + reference(CATALOG) +
               " >>\nstartxref\n" + text_of(bytes_.size()) + "\n%%EOF\n";
    }

  private:
    // The second line tells programs that move files that this one is not plain text.
    std::string bytes_ = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::vector<std::size_t> starts_;
};

std::string page_tree(std::size_t page_count) {
    std::string kids;
    for (std::size_t page = 0; page < page_count; ++page) {
        kids += (page == 0 ? "" : " ") + reference(page_object(page));
    }
    return "<< /Type /Pages /Kids [" + kids + "] /Count " + text_of(page_count) + " >>";
}

std::string page_content(std::size_t page) {
    return "<< /Type /Page /Parent " + reference(PAGE_TREE) + " /MediaBox [0 0 " +
           coordinate(PAGE_WIDTH) + " " + coordinate(PAGE_HEIGHT) +
           "] /Resources << /Font << /F1 " + reference(FONT) + " >> >> /Contents " +
           reference(page_object(page) + 1) + " >>";
}

std::string stream(const std::string& content) {
    return "<< /Length " + text_of(content.size()) + " >>\nstream\n" + content + "endstream";
}

}  // namespace

void pdf_printer::line(std::initializer_list<report_item> items) {
    const double height = LINE_HEIGHT * points_;
    if (pages_.empty() || left_on_page_ < height) {
        pages_.emplace_back();
        left_on_page_ = PAGE_HEIGHT - 2.0 * MARGIN;
    }
    left_on_page_ -= height;
    const std::string text = columned_line(items);
    if (!text.empty()) {
        pages_.back() += drawn_line(text, points_, MARGIN + left_on_page_);
    }
}

std::string pdf_printer::bytes() const {
    const std::vector<std::string> pages = pages_.empty() ? std::vector<std::string>(1) : pages_;
    pdf_objects objects;
    objects.add("<< /Type /Catalog /Pages " + reference(PAGE_TREE) + " >>");
    objects.add(page_tree(pages.size()));
    objects.add("<< /Type /Font /Subtype /Type1 /BaseFont /Courier /Encoding /WinAnsiEncoding >>");
    for (std::size_t page = 0; page < pages.size(); ++page) {
        objects.add(page_content(page));
        objects.add(stream(pages[page]));
    }
    return objects.file();
}

}  // namespace kvt
