// design_export: the picture of the Design view for the clipboard and as the bytes of a file.
#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <string>
#include <string_view>

class QPainter;

namespace kvt {

/// A square picture as a window shows it.
struct shown_picture {
    std::function<void(QPainter&)> paint;
    int side = 0;  ///< pixels
    QString title;
};

/// With `density` dots to a pixel.
QImage image_of(const shown_picture& shown, double density);

/// An SVG drawing, whose lines and texts stay lines and texts, for a path that ends so in any case
/// of letters; else a PNG picture of twice the screen's density. Throws run_time_error (invalid
/// property value) for a picture of no size.
std::string picture_of_path(const shown_picture& shown, std::string_view path,
                            double screen_density);

}  // namespace kvt
