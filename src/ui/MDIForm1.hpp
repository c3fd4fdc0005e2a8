// MDIForm1: the main window with the menus, the status bar and the child windows.
#pragma once

#include "ui/main_menu.hpp"

#include <QList>
#include <QMainWindow>
#include <QPointer>

class QMdiArea;

namespace kvt {

class mdi_form;

class MDIForm1 : public QMainWindow {
    Q_OBJECT

  public:
    explicit MDIForm1(form_context context);

    /// Shows the program's state in the menus and in every child window.
    void refresh();
    /// Places the child windows and the main window itself as the program's window rectangles say, and shows them.
    void show_layout();
    /// Builds one of the forms that are forgotten when they close, in the middle of the window, not shown yet. Throws
    /// run_time_error when its load fails.
    void load_child(std::string_view form);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void add_form(mdi_form* form, bool is_shown);
    void show_about();
    void ask_exit();
    void colour_background();

    form_context context_;
    QMdiArea* area_;
    main_menu* menu_;
    QList<QPointer<mdi_form>> forms_;  ///< a form that was closed for good is nullptr
};

}  // namespace kvt
