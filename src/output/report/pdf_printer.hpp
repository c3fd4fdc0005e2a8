// pdf_printer: the printed report as a PDF file of text pages, with a standard font of every
// reader. Objects: docs/file-formats.md, "Printed report".
#pragma once

#include "core/report_printer.hpp"

#include <string>
#include <vector>

namespace kvt {

/// A4 pages upright in Courier, whose characters all have the width of a column: 0.6 of the size. A
/// line is 1.2 times its size high. A line wider than the page is drawn narrower, so that it ends
/// at the right margin. Texts are in the code page; other characters become "?".
class pdf_printer : public report_printer {
  public:
    void font_size(double points) override { points_ = points; }
    void line(std::initializer_list<report_item> items) override;
    void end_document() override {}

    /// The file with the lines so far; one empty page when there are none.
    std::string bytes() const;

  private:
    double points_ = 12.0;
    double left_on_page_ = 0.0;       // height, points
    std::vector<std::string> pages_;  // the drawing of each
};

}  // namespace kvt
