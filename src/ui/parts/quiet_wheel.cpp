#include "ui/parts/quiet_wheel.hpp"

#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace kvt {

quiet_wheel::quiet_wheel() {
    qApp->installEventFilter(this);
}

bool quiet_wheel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched) != nullptr) {
        event->ignore();  // the parent gets it next
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace kvt
