#include "ui/shell/application_style.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/ink.hpp"
#include "ui/parts/text_font.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QFont>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace kvt {

namespace {

constexpr int FONT_SIZE_POINTS = 9;

/// Fusion draws outlines in the window's colour, made darker by 140 %: on the dark ground of a list
/// nobody sees them.
QColor window_of_visible_outline(const QPalette& palette) {
    constexpr int AS_MUCH_LIGHTER = 140;
    return faint_ink(palette.color(QPalette::Base), palette.color(QPalette::Text))
        .lighter(AS_MUCH_LIGHTER);
}

/// Fusion, whose boxes have the ground of all entries. Windows has a palette of their own for its
/// dark mode, made for another style: there a box without a tick would be filled like one with it.
class fusion_style : public QProxyStyle {
  public:
    fusion_style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (box == nullptr ||
            (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton)) {
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
        QStyleOptionButton plain = *box;
        plain.palette.setBrush(QPalette::Base, QGuiApplication::palette().base());
        if (is_dark(plain.palette) && qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
            plain.palette.setColor(QPalette::Window, window_of_visible_outline(plain.palette));
        }
        QProxyStyle::drawPrimitive(element, &plain, painter, widget);
    }
};

}  // namespace

void set_application_style(QApplication& application) {
    QApplication::setStyle(new fusion_style);
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
