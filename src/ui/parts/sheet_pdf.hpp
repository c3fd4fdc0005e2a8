// sheet_pdf: the design sheet as a PDF file.
#pragma once

#include "views/sheet/sheet_writer.hpp"

#include <QLocale>
#include <QPageSize>

class QPainter;

namespace kvt {

/// The paper of a country: Letter where it is usual, else A4.
QPageSize::PageSizeId paper_of(QLocale::Territory territory);
/// That of the system's locale.
QPageSize::PageSizeId system_paper();

class sheet_pdf : public sheet_writer {
  public:
    explicit sheet_pdf(QPageSize::PageSizeId paper) : paper_(paper) {}

    sheet_paper paper() const override;
    std::string document(const std::vector<sheet_page>& pages, std::string_view title) override;

  private:
    QPageSize paper_;
};

/// A page on a painter whose unit is a dot of `dots_per_mm` to the millimetre. Colours are the
/// page's own in every theme.
void paint_sheet_page(QPainter& painter, const sheet_page& page, double dots_per_mm);

}  // namespace kvt
