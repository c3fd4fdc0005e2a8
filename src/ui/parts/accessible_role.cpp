#include "ui/parts/accessible_role.hpp"

#include <QAccessibleWidget>

namespace kvt {

namespace {

constexpr const char* ROLE_PROPERTY = "accessible_role";

/// Asked for each class of an object, the object's own first: nullptr leaves it to the others.
QAccessibleInterface* interface_with_role(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget == nullptr ? QVariant() : widget->property(ROLE_PROPERTY);
    return role.isValid()
               ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

}  // namespace

void set_accessible_role(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(interface_with_role);  // once: a second time changes nothing
    widget.setProperty(ROLE_PROPERTY, static_cast<int>(role));
}

}  // namespace kvt
