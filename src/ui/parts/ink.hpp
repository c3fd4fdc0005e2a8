// ink: colours of text that can be read on their ground, whatever palette the desktop brings.
#pragma once

#include "views/rgb_colour.hpp"

#include <QColor>
#include <QPalette>

namespace kvt {

QColor qt_colour(const rgb_colour& colour);

/// Whether windows have a dark ground.
bool is_dark(const QPalette& palette);

/// The contrast that small text needs, at least. Source: WCAG 2.1, success criterion 1.4.3.
inline constexpr double READABLE_CONTRAST = 4.5;

/// (L1 + 0.05) / (L2 + 0.05) of the relative luminances, the lighter one above: 1 .. 21.
/// Source: WCAG 2.1, "contrast ratio".
double contrast(const QColor& one, const QColor& other);

/// The wanted colour where it can be read on the ground, else black or white, whichever stands out
/// more.
QColor ink_on(const QColor& ground, const QColor& wanted);

/// The ink of what accompanies a text: as near to the ground as can still be read.
QColor faint_ink(const QColor& ground, const QColor& ink);

}  // namespace kvt
