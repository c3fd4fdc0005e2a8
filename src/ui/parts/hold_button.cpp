#include "ui/parts/hold_button.hpp"

#include <QMouseEvent>

namespace kvt {

void hold_button::mousePressEvent(QMouseEvent* event) {
    QToolButton::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        emit held();
    }
}

void hold_button::mouseReleaseEvent(QMouseEvent* event) {
    QToolButton::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit let_go();
    }
}

}  // namespace kvt
