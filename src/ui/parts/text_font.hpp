// text_font: the font of the windows, charts and sheets.
#pragma once

#include <QFont>

namespace kvt {

/// Liberation Sans, or Arial where a system has that: letters of the same widths. Texts that fit on
/// one machine fit on the other.
QFont text_font();

}  // namespace kvt
