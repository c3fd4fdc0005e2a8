// report_printer: what the printed report is written to, line by line: paper, a text, a PDF file.
#pragma once

#include <initializer_list>
#include <string_view>

namespace kvt {

/// A text that begins in a column, 1 is the left margin. Where the text before it leaves no blank
/// in front of that column it follows one blank behind that text.
struct report_item {
    int column = 1;
    std::string_view text;  ///< UTF-8
};

class report_printer {
  public:
    virtual ~report_printer() = default;

    /// Of the lines that follow.
    virtual void font_size(double points) = 0;
    /// One line, its items in the order of their columns; without items an empty line. The page
    /// breaks when the line does not fit any more.
    virtual void line(std::initializer_list<report_item> items) = 0;
    virtual void end_document() = 0;
};

}  // namespace kvt
