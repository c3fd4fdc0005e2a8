// edit_menu: the Edit menu, which takes steps back and does them again.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <QObject>

class QAction;
class QMainWindow;

namespace kvt {

class edit_menu : public QObject {
    Q_OBJECT

  public:
    /// Takes over the entries of the menu mnuedit of the window: Ctrl+Z, and Ctrl+Shift+Z or
    /// Ctrl+Y.
    edit_menu(form_context context, QMainWindow& window);

    /// Names the steps in the entries: "Undo Eccentricity 2.6 → 2.8".
    void refresh();

  signals:
    /// The user wants to see all steps.
    void history_asked();

  private:
    void show_step(QAction& entry, bool is_there, std::size_t step);

    form_context context_;
    QAction* undo_;
    QAction* redo_;
};

}  // namespace kvt
