// window_menu: the Window menu, which shows the five child windows again and brings one to the
// front.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <QObject>

#include <utility>
#include <vector>

class QAction;
class QMainWindow;

namespace kvt {

struct form_row;

class window_menu : public QObject {
    Q_OBJECT

  public:
    /// Fills the menu mnuwindow of the window; an entry is named as its form with "mnuwindow_"
    /// before it.
    window_menu(form_context context, QMainWindow& window);

    /// Shows the titles of the windows in the current language.
    void refresh();

  signals:
    /// The user wants to work in that child window.
    void chosen(const QString& form);

  private:
    form_context context_;
    std::vector<std::pair<const form_row*, QAction*>> entries_;
};

}  // namespace kvt
