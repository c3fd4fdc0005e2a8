#include "ui/shell/edit_menu.hpp"

#include "app/history/step_text.hpp"
#include "app/program.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QMainWindow>

namespace kvt {

edit_menu::edit_menu(form_context context, QMainWindow& window)
    : QObject(&window),
      context_(context),
      undo_(window.findChild<QAction*>("mnueditundo")),
      redo_(window.findChild<QAction*>("mnueditredo")) {
    undo_->setShortcut(QKeySequence("Ctrl+Z"));
    redo_->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
    command_runner& runner = context_.runner;
    connect(undo_, &QAction::triggered, this,
            [&runner] { runner.go_to_step(runner.history().position() - 1); });
    connect(redo_, &QAction::triggered, this,
            [&runner] { runner.go_to_step(runner.history().position() + 1); });
    connect(window.findChild<QAction*>("mnuedithistory"), &QAction::triggered, this,
            &edit_menu::history_asked);
}

void edit_menu::refresh() {
    const edit_history& history = context_.runner.history();
    show_step(*undo_, history.can_undo(), history.position());
    show_step(*redo_, history.can_redo(), history.position() + 1);
}

void edit_menu::show_step(QAction& entry, bool is_there, std::size_t step) {
    QString text = caption_of(context_.kavetta, "MDIForm1", utf8_text(entry.objectName()));
    if (is_there) {
        text += " " + literal_text(step_text(context_.kavetta, context_.runner.history(), step));
    }
    entry.setText(text);
    entry.setEnabled(is_there);
}

}  // namespace kvt
