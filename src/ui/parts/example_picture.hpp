// example_picture: a small picture of a design that is not open.
#pragma once

#include <QPixmap>

#include <string>

namespace kvt {

/// Both rotors and the ports of a project, calculated anew, on a white square with a side in pixels
/// of the screen with that ratio. A null picture when the file can't be read or has no such design.
QPixmap example_picture(const std::string& path, int side, double pixel_ratio);

}  // namespace kvt
