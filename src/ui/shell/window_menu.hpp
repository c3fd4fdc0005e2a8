// window_menu: the Window menu, which shows the five child windows, the results, the exact figures
// and the models again and brings one to the front.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <QObject>

#include <utility>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

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
    void add_entry(QMenu& menu, const QString& form);

    form_context context_;
    std::vector<std::pair<QString, QAction*>> entries_;  ///< by the name of their window
};

}  // namespace kvt
