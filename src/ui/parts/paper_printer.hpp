// paper_printer: the printed report on paper. Columns: docs/file-formats.md, "Printed report".
#pragma once

#include "core/printer_chooser.hpp"
#include "core/report_printer.hpp"

#include <QPainter>

#include <memory>

class QPrinter;
class QWidget;

namespace kvt {

/// Column n begins n - 1 average character widths of the font from the left margin; a line that is
/// wider than the page is painted narrower, so that it ends at the right margin.
class paper_printer : public report_printer {
  public:
    /// Begins the document; nullptr when that fails.
    static std::unique_ptr<paper_printer> on(std::unique_ptr<QPrinter> printer);
    ~paper_printer() override;

    void font_size(double points) override;
    void line(std::initializer_list<report_item> items) override;
    void end_document() override;

  private:
    explicit paper_printer(std::unique_ptr<QPrinter> printer);

    std::unique_ptr<QPrinter> printer_;
    QPainter painter_;
    double bottom_ = 0.0;  ///< of the line before, dots below the top margin
};

/// The print dialog and the printer that it chose; nullptr when it was cancelled or printing can't
/// begin.
std::unique_ptr<report_printer> ask_for_paper(const print_request& request, QWidget* parent);

}  // namespace kvt
