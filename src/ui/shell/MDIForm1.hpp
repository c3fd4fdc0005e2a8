// MDIForm1: the main window with the menus, the status bar and the child windows.
#pragma once

#include "app/desk/layout_commands.hpp"
#include "app/desk/result_news.hpp"
#include "ui/shell/main_menu.hpp"

#include <QList>
#include <QMainWindow>
#include <QPointer>

class QMdiArea;

namespace kvt {

class announcer;
struct form_row;
class edit_menu;
class limits_line;
class mdi_form;
class pinned_heading;
class preview;
class status_hints;
class window_menu;

class MDIForm1 : public QMainWindow {
    Q_OBJECT

  public:
    explicit MDIForm1(form_context context);

    /// Shows the program's state in the menus and in every child window.
    void refresh();
    /// Shows the windows of the start where the program's window rectangles say, the main window
    /// last.
    void show_start(const start_layout& start);
    /// Builds one of the forms that are forgotten when they close, in the middle of the window, not
    /// shown yet. Throws run_time_error when its load fails.
    void load_child(std::string_view form);
    /// Shows the main window before those of other programs. Where the desktop lets only the user
    /// do that, and the token is not one for it, the task bar points to the window.
    void come_to_front(const QByteArray& token);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void add_form(mdi_form* form, bool is_shown);
    void connect_commands();
    void connect_announcements();
    void show_preview();
    void show_pinned();
    void place_child(const form_row& form);
    void place_children();
    void place_fixed_windows();
    void place_itself();
    void bring_to_front(const QString& form);
    void save_layout();
    void restore_layout();
    void fit_layout();
    void place_first_layout();
    layout_room room() const;
    void show_about();
    void show_cnc_output();
    void ask_exit();
    void colour_background();

    form_context context_;
    QMdiArea* area_;
    main_menu* menu_;
    edit_menu* edits_;
    window_menu* windows_;
    status_hints* hints_;
    preview* preview_;
    pinned_heading* pinned_heading_;
    bool shows_pinned_ = false;
    limits_line* limits_ = nullptr;
    announcer* announcer_;
    result_news news_;
    bool is_first_layout_ = false;     ///< of the first start, which follows the size of the window
    QList<QPointer<mdi_form>> forms_;  ///< a form that was closed for good is nullptr
};

}  // namespace kvt
