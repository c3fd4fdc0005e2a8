// The look of the desktop program: Fusion in the system's light or dark palette, one font.
#pragma once

class QApplication;

namespace kvt {

void set_application_style(QApplication& application);

}  // namespace kvt
