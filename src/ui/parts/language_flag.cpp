#include "ui/parts/language_flag.hpp"

#include <QPainter>

namespace kvt {

namespace {

const QColor FLAG_BLUE(1, 33, 105);
const QColor FLAG_RED(200, 16, 46);
const QColor FLAG_GOLD(255, 206, 0);

/// Room around the flag for the frame of the focus, pixels.
constexpr int FRAME = 3;

void paint_union_flag(QPainter& painter, const QRectF& area) {
    const QPointF centre = area.center();
    painter.fillRect(area, FLAG_BLUE);
    const auto cross = [&](const QColor& colour, double diagonal, double straight) {
        if (diagonal > 0.0) {
            painter.setPen(QPen(colour, diagonal));
            painter.drawLine(area.topLeft(), area.bottomRight());
            painter.drawLine(area.topRight(), area.bottomLeft());
        }
        painter.fillRect(QRectF(area.left(), centre.y() - straight / 2, area.width(), straight),
                         colour);
        painter.fillRect(QRectF(centre.x() - straight / 2, area.top(), straight, area.height()),
                         colour);
    };
    cross(Qt::white, area.height() / 5.0, 0.0);
    cross(FLAG_RED, area.height() / 14.0, 0.0);
    cross(Qt::white, 0.0, area.height() / 3.0);
    cross(FLAG_RED, 0.0, area.height() / 5.0);
}

void paint_german_flag(QPainter& painter, const QRectF& area) {
    const double stripe = area.height() / 3.0;
    painter.fillRect(area, Qt::black);
    painter.fillRect(QRectF(area.left(), area.top() + stripe, area.width(), stripe), FLAG_RED);
    painter.fillRect(QRectF(area.left(), area.top() + 2.0 * stripe, area.width(), stripe),
                     FLAG_GOLD);
}

}  // namespace

language_flag::language_flag(const char* name, flag_kind kind) : kind_(kind) {
    setObjectName(name);
    setAccessibleName(kind == flag_kind::english ? "English" : "Deutsch");
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize language_flag::sizeHint() const {
    return {30, 21};
}

void language_flag::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    }
    const QRectF area = QRectF(rect()).adjusted(FRAME, FRAME, -FRAME, -FRAME);
    painter.setClipRect(area);
    painter.setOpacity(isChecked() || underMouse() ? 1.0 : 0.55);
    if (kind_ == flag_kind::english) {
        paint_union_flag(painter, area);
    } else {
        paint_german_flag(painter, area);
    }
}

}  // namespace kvt
