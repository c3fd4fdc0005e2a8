#include "ui/parts/design_export.hpp"

#include "ui/parts/chart_export.hpp"
#include "ui/parts/svg_page.hpp"

#include <QPainter>

namespace kvt {

namespace {

constexpr double EXPORT_DENSITY = 2.0;  ///< times the screen's

}  // namespace

QImage image_of(const shown_picture& shown, double density) {
    const int dots = qRound(shown.side * density);
    QImage picture(dots, dots, QImage::Format_RGB32);
    picture.setDevicePixelRatio(density);
    if (!picture.isNull()) {
        QPainter painter(&picture);
        shown.paint(painter);
    }
    return picture;
}

std::string picture_of_path(const shown_picture& shown, std::string_view path,
                            double screen_density) {
    if (format_of(path) == chart_format::svg) {
        return svg_of({shown.side, shown.side}, shown.title, shown.paint);
    }
    return picture_file(image_of(shown, EXPORT_DENSITY * screen_density), "PNG");
}

}  // namespace kvt
