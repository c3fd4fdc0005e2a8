// chart_export: a chart as a picture, a page, and the bytes of the files that it is exported to.
#pragma once

#include "ui/parts/chart_painting.hpp"

#include <QImage>
#include <QSize>

#include <string>
#include <string_view>

class QPagedPaintDevice;
class QPainter;

namespace kvt {

/// A chart as a window shows it.
struct shown_chart {
    const result_chart& chart;
    const chart_drawing& drawing;
    const hidden_curves& hidden;
    QSize size;  ///< of the client area, pixels
};

enum class chart_format { png, svg, pdf, csv };

/// By the ending of the path, in any case of letters; png for any other.
chart_format format_of(std::string_view path);

/// The picture with `density` dots to a pixel.
QImage chart_picture(const shown_chart& shown, double density);

/// The file of a format: a picture of twice the screen's density, curves and texts that stay curves
/// and texts, or the numbers of the curves. Curves that are hidden are in none of them.
std::string exported_chart(const shown_chart& shown, chart_format format, double screen_density,
                           char decimal_mark);

/// A picture as the file of a format that the painting library knows. Throws run_time_error
/// (invalid property value) when it is none.
std::string picture_file(const QImage& picture, const char* format);
/// A picture as a bitmap file of 24 bits a dot; throws as picture_file.
std::string bitmap_file(const QImage& picture);

/// Paints the chart across the width of a page, at its top, or as high as a lower page. Throws
/// run_time_error (path/file access) when the device takes no page.
void print_chart(const shown_chart& shown, QPagedPaintDevice& page);

}  // namespace kvt
