#include "ui/parts/design_picture.hpp"

#include "ui/parts/accessible_role.hpp"
#include "ui/parts/ink.hpp"
#include "ui/parts/sight_painting.hpp"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

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

/// Outlines of the pinned design, pixels: wide enough to be seen below a line of the same place.
constexpr double PINNED_WIDTH = 2.4;

/// What one notch of a wheel tells.
constexpr double WHEEL_STEP = 120.0;

bool is_menu_key(const QKeyEvent& event) {
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers().testFlag(Qt::ShiftModifier));
}

}  // namespace

design_picture::design_picture(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture1");
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

void design_picture::show_pinned(design_painting pinned) {
    pinned_ = std::move(pinned);
    update();
}

void design_picture::show_sight(rotor_fill fill, sight_drawing sight) {
    fill_ = std::move(fill);
    sight_ = std::move(sight);
    update();
}

void design_picture::set_measuring(bool on) {
    is_measuring_ = on;
}

void design_picture::paint(QPainter& painter, const sight_palette& palette) const {
    painter.fillRect(rect(), qt_colour(palette.paper));
    painter.setRenderHint(QPainter::Antialiasing);
    paint_sight_ground(painter, fill_, sight_, palette);
    pinned_.paint_outlines(painter, qt_colour(palette.pinned), PINNED_WIDTH);
    painting_.paint(painter, palette);
    paint_overlays(overlays_, painter);
    paint_sight(painter, sight_, palette);
}

const sight_palette& design_picture::palette_of_desktop() const {
    return sight_palette_on(is_dark(palette()));
}

void design_picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paint(painter, palette_of_desktop());
    if (hasFocus() && shows_cross_) {
        paint_cross(painter, palette_of_desktop());
    }
}

/// The cross and the frame say that the keys act here.
void design_picture::paint_cross(QPainter& painter, const sight_palette& palette) const {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(qt_colour(palette.cross), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(cross_ - QPoint(CROSS_ARM, 0), cross_ + QPoint(CROSS_ARM, 0));
    painter.drawLine(cross_ - QPoint(0, CROSS_ARM), cross_ + QPoint(0, CROSS_ARM));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool design_picture::is_drag(const QPointF& place) const {
    return (place - mouse_down_).manhattanLength() >= QApplication::startDragDistance();
}

bool design_picture::measures_with(const QMouseEvent& event) const {
    return is_measuring_ && event.button() == Qt::LeftButton;
}

void design_picture::mousePressEvent(QMouseEvent* event) {
    mouse_down_ = event->position();
    if (event->button() == Qt::MiddleButton) {
        pan_from_ = event->position();
        setCursor(Qt::ClosedHandCursor);
    } else if (measures_with(*event)) {
        emit point_set(mouse_down_.x(), mouse_down_.y());
    } else {
        const point2 place = twips(event->position());
        emit pressed(place.x, place.y);
    }
}

void design_picture::mouseMoveEvent(QMouseEvent* event) {
    if (pan_from_) {
        pan_to(event->position());
        return;
    }
    const point2 place = twips(event->position());
    emit moved(place.x, place.y);
}

void design_picture::pan_to(const QPointF& place) {
    const QPointF way = place - std::exchange(*pan_from_, place);
    const point2 twips = box_.on_drawing({way.x(), way.y()});
    emit panned(twips.x, twips.y);
}

void design_picture::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        pan_from_.reset();
        setCursor(Qt::CrossCursor);
    } else if (!measures_with(*event)) {
        release_band(*event);
    } else if (is_drag(event->position())) {
        emit point_dragged(event->position().x(), event->position().y());
    }
}

/// A right button that went up where it went down zooms nothing, and opens the menu.
void design_picture::release_band(const QMouseEvent& event) {
    const bool asks_menu = event.button() == Qt::RightButton && !is_drag(event.position());
    const point2 place = twips(asks_menu ? mouse_down_ : event.position());
    emit released(place.x, place.y);
    if (asks_menu) {
        emit menu_asked(event.globalPosition().toPoint());
    }
}

void design_picture::wheelEvent(QWheelEvent* event) {
    const point2 place = twips(event->position());
    emit wheeled(event->angleDelta().y() / WHEEL_STEP, place.x, place.y);
    event->accept();
}

/// The right button asks for the menu when it goes up.
void design_picture::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        emit menu_asked(mapToGlobal(rect().center()));
    }
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
    if (is_menu_key(*event)) {
        return emit menu_asked(mapToGlobal(rect().center()));
    }
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
            emit point_dropped();
            return drop_band();
        case Qt::Key_Plus:
            return wheel_at_cross(1.0);
        case Qt::Key_Minus:
            return wheel_at_cross(-1.0);
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

void design_picture::wheel_at_cross(double steps) {
    const point2 place = twips(cross_);
    emit wheeled(steps, place.x, place.y);
}

void design_picture::press_space() {
    if (is_measuring_) {
        return emit point_set(cross_.x(), cross_.y());
    }
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
