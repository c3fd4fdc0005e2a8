// Watches which entry the user is in, so that its handler runs when the entry is left.
#pragma once

#include "ui/shell/command_runner.hpp"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace kvt {

/// Moving to another control of the same window leaves an entry. A window that loses activation, a
/// message box and an open menu do not: the user comes back to the entry.
class entry_focus : public QObject {
    Q_OBJECT

  public:
    explicit entry_focus(command_runner& runner);

  private:
    void focus_changed(QWidget* old, QWidget* now);

    command_runner& runner_;
    QPointer<QWidget> entry_;
};

}  // namespace kvt
