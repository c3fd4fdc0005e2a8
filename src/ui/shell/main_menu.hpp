// main_menu: the menus of the main window, built from the menu tree and kept true to the program's
// state.
#pragma once

#include "ui/parts/form_binding.hpp"
#include "ui/shell/menu_tree.hpp"

#include <QMap>
#include <QObject>

#include <array>

class QAction;
class QMainWindow;
class QMenu;

namespace kvt {

class main_menu : public QObject {
    Q_OBJECT

  public:
    /// Builds the whole tree in the window's menu bar. Each menu and entry has its product name as
    /// objectName; the recent entries are mnufileprev0 .. mnufileprev3.
    main_menu(form_context context, QMainWindow& window);

    /// Shows captions, recent projects and enabling.
    void refresh();

  private:
    void add_row(const menu_row& row, QMainWindow& window);
    QAction* add_action(std::string_view name, QMenu& menu);
    void add_entry(const menu_row& row, QMenu& menu);
    void add_files(file_group group, QMenu& menu);
    void add_recent_entries(const menu_row& row, QMenu& menu);
    void refresh_titles();
    void refresh_recent_entries();
    void refresh_updates();
    void refresh_comparison();

    form_context context_;
    QMainWindow& window_;
    QMap<QString, QMenu*> menus_;
    QMap<QString, QAction*> actions_;             ///< by name; for a menu the action that opens it
    QMap<QString, std::string_view> enabled_as_;  ///< by name, where another entry says it
    std::array<QAction*, 4> recent_{};
};

}  // namespace kvt
