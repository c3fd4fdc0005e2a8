#include "ui/parts/announcer.hpp"

#include "ui/parts/accessible_role.hpp"

namespace kvt {

announcer::announcer(QWidget* parent) : QWidget(parent) {
    setObjectName("announcer");
    set_accessible_role(*this, QAccessible::Notification);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(0, 0, 1, 1);
}

/// Some readers follow the name, others wait until a notification comes up.
void announcer::announce(const QString& line) {
    if (line.isEmpty()) {
        return;
    }
    setAccessibleName(line);
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
    emit announced(line);
}

}  // namespace kvt
