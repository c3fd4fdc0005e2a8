// accessible_role: what a screen reader takes a widget for that is painted by hand: a picture, a
// chart, a message.
#pragma once

#include <QAccessible>

class QWidget;

namespace kvt {

/// Gives a widget its role; before anybody has asked for it, so in its constructor. Name and
/// description stay those of the widget.
void set_accessible_role(QWidget& widget, QAccessible::Role role);

}  // namespace kvt
