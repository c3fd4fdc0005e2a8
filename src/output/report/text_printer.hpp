// text_printer: the printed report as plain text. Lines: docs/file-formats.md, "Printed report".
#pragma once

#include "core/report_printer.hpp"

#include <string>
#include <vector>

namespace kvt {

/// Every character is a column wide; there are no sizes and no pages.
class text_printer : public report_printer {
  public:
    void font_size(double) override {}
    void line(std::initializer_list<report_item> items) override;
    void end_document() override {}

    /// The lines so far, UTF-8, without their ends.
    const std::vector<std::string>& lines() const { return lines_; }

  private:
    std::vector<std::string> lines_;
};

}  // namespace kvt
