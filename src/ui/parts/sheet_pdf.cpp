#include "ui/parts/sheet_pdf.hpp"

#include "base/run_time_error.hpp"
#include "ui/parts/ink.hpp"
#include "ui/parts/text_font.hpp"
#include "ui/shell/qt_text.hpp"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <array>
#include <cmath>

namespace kvt {

namespace {

constexpr int DOTS_PER_INCH = 1200;
constexpr double DOTS_PER_MM = DOTS_PER_INCH / 25.4;

/// The countries whose usual paper is Letter.
constexpr std::array LETTER_COUNTRIES = {
    QLocale::UnitedStates, QLocale::Canada,     QLocale::Mexico,    QLocale::Belize,
    QLocale::Guatemala,    QLocale::ElSalvador, QLocale::Nicaragua, QLocale::CostaRica,
    QLocale::Panama,       QLocale::Colombia,   QLocale::Venezuela, QLocale::Chile,
    QLocale::Philippines,  QLocale::PuertoRico};

QFont qt_font(const sheet_font& font, double dots_per_mm) {
    QFont shown = text_font();
    shown.setPixelSize(
        std::max(1, static_cast<int>(std::lround(font.points * MM_PER_POINT * dots_per_mm))));
    shown.setBold(font.is_bold);
    return shown;
}

/// In widths of the pen.
QList<qreal> dashes_of(sheet_dashes dashes) {
    switch (dashes) {
        case sheet_dashes::dotted:
            return {1.5, 2.0};
        case sheet_dashes::dashed:
            return {6.0, 3.0};
        case sheet_dashes::dash_dotted:
            return {9.0, 3.0, 1.5, 3.0};
        case sheet_dashes::solid:
            break;
    }
    return {};
}

QPen qt_pen(const sheet_pen& pen, double dots_per_mm) {
    QPen shown(qt_colour(pen.colour), pen.width * dots_per_mm, Qt::SolidLine, Qt::FlatCap,
               Qt::BevelJoin);
    if (pen.dashes != sheet_dashes::solid) {
        shown.setDashPattern(dashes_of(pen.dashes));
    }
    return shown;
}

Qt::Alignment qt_alignment(sheet_alignment alignment) {
    switch (alignment) {
        case sheet_alignment::left:
            return Qt::AlignLeft;
        case sheet_alignment::right:
            return Qt::AlignRight;
        case sheet_alignment::centre:
            break;
    }
    return Qt::AlignHCenter;
}

void paint_path(QPainter& painter, const page_path& path, double dots_per_mm) {
    QPolygonF points;
    for (const point2& point : path.points) {
        points.append(QPointF(point.x, point.y) * dots_per_mm);
    }
    painter.setPen(path.pen ? qt_pen(*path.pen, dots_per_mm) : QPen(Qt::NoPen));
    if (path.fill) {
        painter.setBrush(qt_colour(*path.fill));
        painter.drawPolygon(points);
    } else {
        painter.drawPolyline(points);
    }
}

void paint_text(QPainter& painter, const page_text& text, double dots_per_mm) {
    const sheet_box& box = text.box;
    painter.setFont(qt_font(text.font, dots_per_mm));
    painter.drawText(QRectF(box.left * dots_per_mm, box.top * dots_per_mm, box.width * dots_per_mm,
                            box.height * dots_per_mm),
                     static_cast<int>(qt_alignment(text.alignment) | Qt::AlignVCenter) |
                         Qt::TextSingleLine | Qt::TextDontClip,
                     qt_text(text.text));
}

}  // namespace

QPageSize::PageSizeId paper_of(QLocale::Territory territory) {
    return std::ranges::find(LETTER_COUNTRIES, territory) == LETTER_COUNTRIES.end()
               ? QPageSize::A4
               : QPageSize::Letter;
}

QPageSize::PageSizeId system_paper() {
    return paper_of(QLocale::system().territory());
}

sheet_paper sheet_pdf::paper() const {
    const QSizeF size = paper_.size(QPageSize::Millimeter);
    return {{size.width(), size.height()}, [](std::string_view text, const sheet_font& font) {
                return QFontMetricsF(qt_font(font, DOTS_PER_MM)).horizontalAdvance(qt_text(text)) /
                       DOTS_PER_MM;
            }};
}

std::string sheet_pdf::document(const std::vector<sheet_page>& pages, std::string_view title) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    pdf.setResolution(DOTS_PER_INCH);
    pdf.setPageSize(paper_);
    pdf.setPageMargins({});
    pdf.setTitle(qt_text(title));
    QPainter painter;
    if (!painter.begin(&pdf)) {
        throw run_time_error(failure::path_file_access, std::string(title));
    }
    for (const sheet_page& page : pages) {
        if (&page != &pages.front() && !pdf.newPage()) {
            throw run_time_error(failure::path_file_access, std::string(title));
        }
        paint_sheet_page(painter, page, DOTS_PER_MM);
    }
    painter.end();
    return bytes.data().toStdString();
}

void paint_sheet_page(QPainter& painter, const sheet_page& page, double dots_per_mm) {
    for (const page_path& path : page.paths) {
        paint_path(painter, path, dots_per_mm);
    }
    painter.setPen(Qt::black);
    for (const page_text& text : page.texts) {
        paint_text(painter, text, dots_per_mm);
    }
}

}  // namespace kvt
