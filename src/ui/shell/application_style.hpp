// The look of the desktop program: Fusion in the system's light or dark palette, one font.
#pragma once

class QApplication;
class QPalette;

namespace kvt {

void set_application_style(QApplication& application);

/// The dark palette that the program is shown in when the system asks for none by itself
/// (screenshots, tests).
QPalette dark_palette();

}  // namespace kvt
