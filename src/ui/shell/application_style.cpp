#include "ui/shell/application_style.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/text_font.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

namespace kvt {

namespace {

constexpr int FONT_SIZE_POINTS = 9;

}  // namespace

void set_application_style(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QFont font = text_font();
    font.setPointSize(FONT_SIZE_POINTS);
    QApplication::setFont(font);
    QApplication::setApplicationName(qt_text(PROGRAM_NAME));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setApplicationVersion(qt_text(FULL_VERSION));
    QApplication::setWindowIcon(program_icon());
    // Desktops of Wayland take the icon of the desktop entry of this name.
    QApplication::setDesktopFileName("kavetta");
    // The program ends when the Exit command says so, not when a window closes.
    application.setQuitOnLastWindowClosed(false);
}

}  // namespace kvt
