#include "ui/parts/design_picture.hpp"

#include "ui/parts/accessible_role.hpp"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kvt {

namespace {

/// The corners of the rubber band are 16-bit integers; a mouse that is further away counts as
/// there.
constexpr double SMALLEST_TWIPS = -32768.0;
constexpr double LARGEST_TWIPS = 32767.0;

/// How far the keys move the cross, and how long its arms are, pixels.
constexpr int CROSS_STEP = 10;
constexpr int CROSS_ARM = 12;
constexpr QColor CROSS_INK(0, 90, 200);

}  // namespace

design_picture::design_picture(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture1");
    // The sheet is white paper with black ink, in a dark theme too.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(0, 0);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::TabFocus);
    set_accessible_role(*this, QAccessible::Graphic);
}

void design_picture::show_view(const design_view& view, const view_box& box) {
    box_ = box;
    painting_ = design_painting(view, box);
    update();
}

point2 design_picture::twips(const QPointF& pixels) const {
    const point2 place = box_.on_drawing({pixels.x(), pixels.y()});
    return {std::clamp(place.x, SMALLEST_TWIPS, LARGEST_TWIPS),
            std::clamp(place.y, SMALLEST_TWIPS, LARGEST_TWIPS)};
}

void design_picture::show_rotors(const design_view& view) {
    painting_.take_rotors(view);
    update();
}

void design_picture::show_band(const rubber_band& band) {
    if (painting_.take_band(band)) {
        update();
    }
}

void design_picture::show_overlays(std::vector<view_overlay> overlays) {
    overlays_ = std::move(overlays);
    update();
}

void design_picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    painting_.paint(painter);
    paint_overlays(overlays_, painter);
    if (hasFocus() && shows_cross_) {
        paint_cross(painter);
    }
}

/// The cross and the frame say that the keys act here; the sheet is white in a dark theme, too.
void design_picture::paint_cross(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(CROSS_INK, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(cross_ - QPoint(CROSS_ARM, 0), cross_ + QPoint(CROSS_ARM, 0));
    painter.drawLine(cross_ - QPoint(0, CROSS_ARM), cross_ + QPoint(0, CROSS_ARM));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void design_picture::mousePressEvent(QMouseEvent* event) {
    const point2 place = twips(event->position());
    emit pressed(place.x, place.y);
}

void design_picture::mouseMoveEvent(QMouseEvent* event) {
    const point2 place = twips(event->position());
    emit moved(place.x, place.y);
}

void design_picture::mouseReleaseEvent(QMouseEvent* event) {
    const point2 place = twips(event->position());
    emit released(place.x, place.y);
}

void design_picture::leaveEvent(QEvent*) {
    emit left();
}

void design_picture::focusInEvent(QFocusEvent* event) {
    cross_ = rect().center();
    shows_cross_ =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
    QWidget::focusInEvent(event);
}

void design_picture::focusOutEvent(QFocusEvent* event) {
    drop_band();
    update();
    emit left();
    QWidget::focusOutEvent(event);
}

void design_picture::keyPressEvent(QKeyEvent* event) {
    const int step = event->modifiers().testFlag(Qt::ControlModifier) ? 1 : CROSS_STEP;
    switch (event->key()) {
        case Qt::Key_Left:
            return move_cross({-step, 0});
        case Qt::Key_Right:
            return move_cross({step, 0});
        case Qt::Key_Up:
            return move_cross({0, -step});
        case Qt::Key_Down:
            return move_cross({0, step});
        case Qt::Key_Space:
            return press_space();
        case Qt::Key_Escape:
            return drop_band();
        default:
            QWidget::keyPressEvent(event);
    }
}

void design_picture::move_cross(const QPoint& step) {
    shows_cross_ = true;
    const QPoint to = cross_ + step;
    cross_ = {std::clamp(to.x(), 0, width() - 1), std::clamp(to.y(), 0, height() - 1)};
    const point2 place = twips(cross_);
    emit moved(place.x, place.y);
    update();
}

void design_picture::press_space() {
    const point2 place = twips(cross_);
    if (std::exchange(pressed_, pressed_ ? std::nullopt : std::optional(cross_))) {
        emit released(place.x, place.y);
    } else {
        emit pressed(place.x, place.y);
    }
}

/// A band without a size zooms nothing.
void design_picture::drop_band() {
    if (const std::optional<QPoint> start = std::exchange(pressed_, std::nullopt)) {
        const point2 place = twips(*start);
        emit released(place.x, place.y);
    }
}

}  // namespace kvt
