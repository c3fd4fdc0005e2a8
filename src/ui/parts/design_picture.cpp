#include "ui/parts/design_picture.hpp"

#include "core/form_table.hpp"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace kvt {

namespace {

/// The corners of the rubber band are 16-bit integers; a mouse that is further away counts as
/// there.
constexpr double SMALLEST_TWIPS = -32768.0;
constexpr double LARGEST_TWIPS = 32767.0;

QPointF twips(const QMouseEvent& event) {
    const QPointF place = event.position() * TWIPS_PER_PIXEL;
    return {std::clamp(place.x(), SMALLEST_TWIPS, LARGEST_TWIPS),
            std::clamp(place.y(), SMALLEST_TWIPS, LARGEST_TWIPS)};
}

}  // namespace

design_picture::design_picture(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture1");
    // The sheet is white paper with black ink, in a dark theme too.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(0, 0);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
}

void design_picture::show_view(const design_view& view) {
    painting_ = design_painting(view);
    update();
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

void design_picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    painting_.paint(painter);
}

void design_picture::mousePressEvent(QMouseEvent* event) {
    const QPointF place = twips(*event);
    emit pressed(place.x(), place.y());
}

void design_picture::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = twips(*event);
    emit moved(place.x(), place.y());
}

void design_picture::mouseReleaseEvent(QMouseEvent* event) {
    const QPointF place = twips(*event);
    emit released(place.x(), place.y());
}

void design_picture::leaveEvent(QEvent*) {
    emit left();
}

}  // namespace kvt
