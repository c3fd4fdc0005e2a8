// Icons drawn by code: the turn arrows of the Design view and the program's own icon.
#pragma once

#include <QIcon>
#include <QPalette>

namespace kvt {

/// Three quarters of a circle with an arrow head, in the palette's button text colour.
QIcon clockwise_icon(const QPalette& palette);
QIcon counter_clockwise_icon(const QPalette& palette);

/// A small gerotor pair, as a picture with a side in pixels.
QPixmap program_picture(int side);
QIcon program_icon();

}  // namespace kvt
