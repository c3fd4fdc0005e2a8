// entry_undo_keys: in the boxes of the entries the keys and the popup menu of undoing belong to the
// program's history, not to the box.
#pragma once

#include <QObject>

class QContextMenuEvent;
class QLineEdit;

namespace kvt {

class entry_undo_keys : public QObject {
  public:
    /// Watches every box of the application.
    entry_undo_keys();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static void show_popup_menu(QLineEdit& box, const QContextMenuEvent& event);
};

}  // namespace kvt
