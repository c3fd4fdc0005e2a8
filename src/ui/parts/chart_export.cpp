#include "ui/parts/chart_export.hpp"

#include "base/run_time_error.hpp"
#include "ui/parts/svg_page.hpp"
#include "ui/shell/qt_text.hpp"
#include "views/charts/chart_csv.hpp"

#include <QBuffer>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <array>

namespace kvt {

namespace {

/// The density of the window's pixels where a file counts in inches or millimetres.
constexpr int DOTS_PER_INCH = 96;
constexpr int PDF_DOTS_PER_INCH = 1200;
constexpr double EXPORT_DENSITY = 2.0;  ///< times the screen's

void paint(QPainter& painter, const shown_chart& shown) {
    paint_whole_chart(painter, shown.drawing, shown.hidden, shown.size);
}

std::string bytes_of(const QBuffer& file) {
    return file.data().toStdString();
}

/// One page of the chart's own size.
std::string pdf_file(const shown_chart& shown) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter paper(&file);
    paper.setTitle(qt_text(shown.chart.title));
    paper.setResolution(PDF_DOTS_PER_INCH);
    paper.setPageSize(QPageSize(QSizeF(shown.size) / DOTS_PER_INCH, QPageSize::Inch));
    paper.setPageMargins(QMarginsF());
    print_chart(shown, paper);
    return bytes_of(file);
}

/// The chart without its hidden curves.
std::string csv_file(const shown_chart& shown, char decimal_mark) {
    result_chart chart = shown.chart;
    chart.curves.clear();
    for (std::size_t index = 0; index < shown.chart.curves.size(); ++index) {
        if (!is_hidden(shown.hidden, index)) {
            chart.curves.push_back(shown.chart.curves[index]);
        }
    }
    text_lines text;
    write_chart_csv(chart, decimal_mark, text);
    return text.bytes();
}

}  // namespace

chart_format format_of(std::string_view path) {
    constexpr std::array ENDINGS = {"png", "svg", "pdf", "csv"};
    const QString ending = QFileInfo(qt_text(path)).suffix().toLower();
    const auto* const found = std::ranges::find(ENDINGS, ending);
    return found == ENDINGS.end() ? chart_format::png
                                  : static_cast<chart_format>(found - ENDINGS.begin());
}

QImage chart_picture(const shown_chart& shown, double density) {
    QImage picture((QSizeF(shown.size) * density).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(density);
    QPainter painter(&picture);
    paint(painter, shown);
    return picture;
}

std::string exported_chart(const shown_chart& shown, chart_format format, double screen_density,
                           char decimal_mark) {
    switch (format) {
        case chart_format::svg:
            return svg_of(shown.size, qt_text(shown.chart.title),
                          [&shown](QPainter& painter) { paint(painter, shown); });
        case chart_format::pdf:
            return pdf_file(shown);
        case chart_format::csv:
            return csv_file(shown, decimal_mark);
        case chart_format::png:
            break;
    }
    return picture_file(chart_picture(shown, EXPORT_DENSITY * screen_density), "PNG");
}

std::string picture_file(const QImage& picture, const char* format) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!picture.save(&file, format)) {
        throw run_time_error(failure::invalid_property_value, "no picture to save");
    }
    return bytes_of(file);
}

std::string bitmap_file(const QImage& picture) {
    return picture_file(picture.convertToFormat(QImage::Format_RGB888), "BMP");
}

void print_chart(const shown_chart& shown, QPagedPaintDevice& page) {
    QPainter painter;
    if (!painter.begin(&page)) {
        throw run_time_error(failure::path_file_access, "the page of a chart");
    }
    const QSizeF area = shown.size;
    const double scale = std::min(page.width() / area.width(), page.height() / area.height());
    painter.scale(scale, scale);
    paint(painter, shown);
}

}  // namespace kvt
