#include "ui/design_picture.hpp"

#include <QPaintEvent>
#include <QPainter>

namespace kvt {

design_picture::design_picture(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture1");
    // The sheet is white paper with black ink, in a dark theme too.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(0, 0);
}

void design_picture::show_view(const design_view& view) {
    painting_ = design_painting(view);
    update();
}

void design_picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    painting_.paint(painter);
}

}  // namespace kvt
