#include "ui/shell/qt_user.hpp"

#include "app/desk/program_title.hpp"
#include "app/program.hpp"
#include "core/text_table.hpp"
#include "ui/forms/Form2.hpp"
#include "ui/forms/Form4.hpp"
#include "ui/forms/GT_form.hpp"
#include "ui/forms/graphview2.hpp"
#include "ui/forms/newprojectname.hpp"
#include "ui/forms/progressfrm.hpp"
#include "ui/parts/paper_printer.hpp"
#include "ui/shell/dialog_form.hpp"
#include "ui/shell/file_dialogs.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

namespace kvt {

namespace {

/// How long a line stands in the status bar when no command ends it, milliseconds.
constexpr int STATUS_TIME_MS = 15000;

/// Behind a message box the window becomes active a little later, and the child window then takes
/// back its old focus.
void focus_when_active(QWidget* target) {
    auto* once = new QObject(target);
    QObject::connect(
        qApp, &QApplication::focusChanged, once, [once, target](QWidget*, const QWidget* now) {
            if (now == nullptr || now->window() != target->window()) {
                return;
            }
            // At once: two that wait would wake each other for as long as they are not deleted.
            QObject::disconnect(qApp, nullptr, once, nullptr);
            once->deleteLater();
            QMetaObject::invokeMethod(
                target, [target] { target->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
        });
}

/// A window of its own also comes back from the task bar.
void bring_up(QWidget& window) {
    if (window.isWindow() && window.isMinimized()) {
        window.showNormal();
    }
    window.show();
    window.raise();
}

/// A carriage return inside a message, with or without a line feed, is one line break.
QString with_line_breaks(QString text) {
    return text.replace("\r\n", "\n").replace('\r', '\n');
}

}  // namespace

qt_user::qt_user(const program& kavetta) : kavetta_(kavetta) {}

void qt_user::attach(QMainWindow* window, std::function<void()> refresh,
                     std::function<void(std::string_view)> load) {
    window_ = window;
    refresh_ = std::move(refresh);
    load_ = std::move(load);
}

/// Dialogs before the main window is on the screen stand alone; above another dialog, or from a
/// chart, they belong to that.
QWidget* qt_user::parent() const {
    if (QWidget* dialog = QApplication::activeModalWidget()) {
        return dialog;
    }
    if (auto* chart = qobject_cast<graphview2*>(QApplication::activeWindow())) {
        return chart;
    }
    return window_ != nullptr && window_->isVisible() ? window_ : nullptr;
}

void qt_user::refresh() const {
    if (refresh_) {
        refresh_();
    }
    if (auto* dialog = qobject_cast<dialog_form*>(QApplication::activeModalWidget())) {
        dialog->refresh();
    }
}

QString qt_user::button_text(message id) const {
    return qt_text(message_text(id, kavetta_.app_state.language));
}

void qt_user::prepare(QMessageBox& box, std::string_view text) const {
    refresh();
    box.setWindowTitle(qt_text(program_title()));
    box.setTextFormat(Qt::PlainText);
    box.setText(with_line_breaks(qt_text(text)));
    if (auto* icon = box.findChild<QLabel*>("qt_msgboxex_icon_label")) {
        icon->setAccessibleName(
            qt_text(form_text("spoken", "message", kavetta_.app_state.language)));
    }
}

void qt_user::command_ended() {
    told_.command_ended(kavetta_.entries, kavetta_.app_state.drawing_units);
}

void qt_user::show_message(std::string_view text) {
    // Behind a dialog nobody sees the status bar.
    const bool can_be_quiet =
        window_ != nullptr && window_->isVisible() && QApplication::activeModalWidget() == nullptr;
    if (told_.stood_already(text) && can_be_quiet) {
        show_status(text);
        return;
    }
    QMessageBox box(parent());
    prepare(box, text);
    box.setIcon(QMessageBox::Warning);
    box.addButton(button_text(message::ok_button), QMessageBox::AcceptRole);
    box.exec();
}

answer qt_user::ask(std::string_view question, question_buttons buttons) {
    QMessageBox box(parent());
    prepare(box, question);
    box.setIcon(QMessageBox::Question);
    const QPushButton* yes = box.addButton(button_text(message::yes_button), QMessageBox::YesRole);
    QPushButton* no = box.addButton(button_text(message::no_button), QMessageBox::NoRole);
    QPushButton* cancel = nullptr;
    if (buttons == question_buttons::yes_no_cancel) {
        cancel = box.addButton(button_text(message::cancel_button), QMessageBox::RejectRole);
        box.setEscapeButton(cancel);
    } else {
        box.setEscapeButton(no);
    }
    box.exec();
    if (box.clickedButton() == yes) {
        return answer::yes;
    }
    return cancel == nullptr || box.clickedButton() == no ? answer::no : answer::cancel;
}

bool qt_user::ask_to_go_on(std::string_view failure) {
    if (window_ == nullptr || !window_->isVisible()) {
        show_message(failure);
        return false;
    }
    QMessageBox box(parent());
    prepare(box, failure);
    box.setObjectName("failure");
    box.setIcon(QMessageBox::Critical);
    QPushButton* go_on = box.addButton(button_text(message::go_on_button), QMessageBox::AcceptRole);
    QPushButton* end = box.addButton(button_text(message::end_button), QMessageBox::RejectRole);
    box.setDefaultButton(go_on);
    box.setEscapeButton(end);
    box.exec();
    return box.clickedButton() == go_on;
}

std::optional<std::string> qt_user::choose_file(const file_dialog& dialog) {
    refresh();
    return run_file_dialog(dialog, parent());
}

void qt_user::open_file(std::string_view path) {
    static_cast<void>(QDesktopServices::openUrl(QUrl::fromLocalFile(qt_text(path))));
}

std::optional<std::string> qt_user::ask_project_name() {
    refresh();
    newprojectname dialog(kavetta_, parent(), [this] {
        show_status(message_text(message::character_refused, kavetta_.app_state.language));
    });
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.name();
}

start_answer qt_user::ask_new_or_open() {
    refresh();
    Form2 prompt(kavetta_, examples_, parent());
    prompt.exec();
    return prompt.chosen();
}

std::optional<std::string> qt_user::ask_modelling_package(std::string_view code) {
    refresh();
    Form4 choice(kavetta_, *this, code, parent());
    if (choice.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return choice.code();
}

std::unique_ptr<report_printer> qt_user::choose_printer(const print_request& request) {
    refresh();
    return ask_for_paper(request, parent());
}

void qt_user::show_status(std::string_view text) {
    if (window_ != nullptr) {
        window_->statusBar()->showMessage(qt_text(text), STATUS_TIME_MS);
    }
}

QWidget* qt_user::window_of(std::string_view form) const {
    if (graphview2* chart = open_chart(form)) {
        return chart;
    }
    return window_ == nullptr ? nullptr : window_->findChild<QMdiSubWindow*>(qt_text(form));
}

void qt_user::show_form(std::string_view form) {
    if (form == "GT_form") {
        GT_form(kavetta_, *this, parent()).run();
        return;
    }
    if (window_ == nullptr) {
        return;
    }
    if (window_of(form) == nullptr) {
        load_(form);
    }
    if (QWidget* window = window_of(form)) {
        bring_up(*window);
    }
}

void qt_user::unload_form(std::string_view form) {
    if (form == "progressfrm") {
        delete progress_;
    } else if (QWidget* window = window_of(form)) {
        window->close();
    }
}

void qt_user::set_focus(std::string_view control) {
    QWidget* target = window_ == nullptr ? nullptr : window_->findChild<QWidget*>(qt_text(control));
    if (target == nullptr) {
        return;
    }
    for (QWidget* ancestor = target; ancestor != nullptr; ancestor = ancestor->parentWidget()) {
        if (auto* form = qobject_cast<QMdiSubWindow*>(ancestor)) {
            form->mdiArea()->setActiveSubWindow(form);
        }
    }
    target->setFocus(Qt::OtherFocusReason);
    if (!target->isActiveWindow()) {
        focus_when_active(target);
    }
}

void qt_user::set_busy(bool busy) {
    if (busy == busy_) {
        return;
    }
    busy_ = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void qt_user::show_progress(std::string_view text, int percent) {
    if (progress_ == nullptr) {
        progress_ = new progressfrm(kavetta_, parent());
    }
    progress_->show_progress(qt_text(text), percent);
    // The work runs in this thread: the window is painted here, and the user's events wait.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void qt_user::show_titled_progress(std::string_view title, int percent) {
    show_progress("", percent);
    progress_->setWindowTitle(qt_text(title));
}

bool qt_user::wait(std::chrono::milliseconds time) {
    if (progress_ == nullptr) {
        show_progress("", 0);
    }
    progress_->take_input();
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
    return progress_ != nullptr && !progress_->is_ended();
}

}  // namespace kvt
