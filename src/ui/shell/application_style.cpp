#include "ui/shell/application_style.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace kvt {

namespace {

constexpr int FONT_SIZE_POINTS = 9;

}  // namespace

void set_application_style(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QFont font("Liberation Sans", FONT_SIZE_POINTS);
    font.setStyleHint(QFont::SansSerif);
    QApplication::setFont(font);
    QApplication::setApplicationName(qt_text(PROGRAM_NAME));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setApplicationVersion(qt_text(FULL_VERSION));
    QApplication::setWindowIcon(program_icon());
    // The program ends when the Exit command says so, not when a window closes.
    application.setQuitOnLastWindowClosed(false);
}

QPalette dark_palette() {
    const QColor window(45, 47, 51);
    const QColor text(226, 228, 232);
    const QColor faint(128, 131, 138);
    QPalette palette(text, window.lighter(125), window.lighter(180), window.darker(150),
                     window.lighter(130), text, Qt::white, window.lighter(140), window);
    palette.setColor(QPalette::Highlight, QColor(47, 111, 178));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, window.lighter(130));
    palette.setColor(QPalette::ToolTipText, text);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

}  // namespace kvt
