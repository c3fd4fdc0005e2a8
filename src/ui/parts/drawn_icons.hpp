// Icons drawn by code: the turn arrows of the Design view and the program's own icon.
#pragma once

#include <QIcon>
#include <QPalette>

#include <array>

class QPainter;

namespace kvt {

/// Three quarters of a circle with an arrow head, in the palette's button text colour.
QIcon clockwise_icon(const QPalette& palette);
QIcon counter_clockwise_icon(const QPalette& palette);

/// The side of the square that paint_program_picture fills, from the origin.
inline constexpr double PICTURE_UNITS = 64.0;
/// A small gerotor pair.
void paint_program_picture(QPainter& painter);
/// The same as a picture with a side in pixels.
QPixmap program_picture(int side);

/// The sizes in which desktops show icons of programs, pixels.
inline constexpr std::array PROGRAM_ICON_SIZES = {16, 22, 24, 32, 48, 64, 128, 256};
/// The program's icon, drawn for each of them.
QIcon program_icon();

}  // namespace kvt
