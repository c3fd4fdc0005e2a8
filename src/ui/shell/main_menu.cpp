#include "ui/shell/main_menu.hpp"

#include "app/files/file_output.hpp"
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/trial/pinned_design.hpp"
#include "ui/shell/access_keys.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace kvt {

namespace {

/// The design-time captions of the recent entries; one that was never set moves down the list with
/// the others.
constexpr std::array<std::string_view, 4> DESIGN_TIME_CAPTIONS = {"&1", "&2", "&3", "&4"};

bool holds_a_project(const std::string& caption) {
    return !caption.empty() &&
           std::ranges::find(DESIGN_TIME_CAPTIONS, caption) == DESIGN_TIME_CAPTIONS.end();
}

}  // namespace

main_menu::main_menu(form_context context, QMainWindow& window)
    : QObject(&window), context_(context), window_(window) {
    for (const menu_row& row : menu_rows()) {
        add_row(row, window);
    }
}

void main_menu::add_row(const menu_row& row, QMainWindow& window) {
    const QString name = qt_text(row.name);
    if (row.kind == menu_kind::menu) {
        QMenu* menu = row.menu.empty() ? window.menuBar()->addMenu(name)
                                       : menus_[qt_text(row.menu)]->addMenu(name);
        menu->setObjectName(name);
        menu->menuAction()->setVisible(!row.is_hidden);
        if (row.opening != nullptr) {
            connect(menu, &QMenu::aboutToShow, this, [this, opening = row.opening] {
                opening(context_.kavetta);
                refresh();
            });
        }
        give_access_keys(*menu);  // behind the new texts
        menus_[name] = menu;
        actions_[name] = menu->menuAction();
        if (!row.enabled_as.empty()) {
            enabled_as_[name] = row.enabled_as;
        }
        return;
    }
    QMenu& menu = *menus_[qt_text(row.menu)];
    if (row.kind == menu_kind::separator) {
        menu.addSeparator()->setObjectName(name);
    } else if (row.kind == menu_kind::step) {
        menu.addAction(QString())->setObjectName(name);
    } else if (row.kind == menu_kind::recent_entries) {
        add_recent_entries(row, menu);
    } else if (row.kind == menu_kind::files) {
        add_files(row.files, menu);
    } else {
        add_entry(row, menu);
    }
}

QAction* main_menu::add_action(std::string_view name, QMenu& menu) {
    QAction* action = menu.addAction(qt_text(name));
    action->setObjectName(qt_text(name));
    actions_[action->objectName()] = action;
    return action;
}

void main_menu::add_entry(const menu_row& row, QMenu& menu) {
    QAction* action = add_action(row.name, menu);
    action->setVisible(!row.is_hidden);
    action->setCheckable(row.is_checkable);
    action->setChecked(row.is_checkable);
    action->setShortcut(QKeySequence(QString(row.shortcut), QKeySequence::PortableText));
    if (row.command != nullptr) {
        connect(action, &QAction::triggered, this,
                [this, command = row.command] { context_.runner.run(command); });
    }
}

void main_menu::add_files(file_group group, QMenu& menu) {
    for (const written_file& file : files_of(group)) {
        connect(add_action(file.control, menu), &QAction::triggered, this, [this, &file] {
            context_.runner.act([&file](program& kavetta, user& person) {
                save_file_of_menu(kavetta, person, file);
            });
        });
    }
}

void main_menu::add_recent_entries(const menu_row& row, QMenu& menu) {
    for (std::size_t index = 0; index < recent_.size(); ++index) {
        QAction* action = menu.addAction(QString());
        action->setObjectName(qt_text(row.name) + QString::number(index));
        connect(action, &QAction::triggered, this, [this, index] {
            context_.runner.act([index](program& kavetta, user& person) {
                previous_design(kavetta, person, static_cast<int>(index));
            });
        });
        recent_.at(index) = action;
    }
}

void main_menu::refresh() {
    const QList<QAction*> bar = window_.menuBar()->actions();
    for (auto entry = actions_.cbegin(); entry != actions_.cend(); ++entry) {
        const std::string name = utf8_text(entry.key());
        const auto other = enabled_as_.constFind(entry.key());
        const bool usable =
            is_enabled(context_.kavetta.enabling, "MDIForm1",
                       other == enabled_as_.cend() ? std::string_view(name) : *other);
        if (!bar.contains(entry.value())) {
            entry.value()->setText(caption_of(context_.kavetta, "MDIForm1", name));
        }
        entry.value()->setEnabled(usable && entry.value()->isVisible());
    }
    refresh_titles();
    refresh_recent_entries();
    refresh_updates();
    refresh_comparison();
}

/// Preview and the pinned design, which follow the state of the program and no record of it.
void main_menu::refresh_comparison() {
    const program& kavetta = context_.kavetta;
    actions_["mnuwindowpreview"]->setChecked(kavetta.app_state.preview_on);
    actions_["mnuwindowpin"]->setEnabled(can_pin_design(kavetta));
    actions_["mnuwindowunpin"]->setEnabled(kavetta.pinned != nullptr);
}

/// The titles in the bar have access keys all the time.
void main_menu::refresh_titles() {
    const QList<QAction*> bar = window_.menuBar()->actions();
    QStringList titles;
    for (const QAction* title : bar) {
        titles.append(
            caption_of(context_.kavetta, "MDIForm1", utf8_text(title->menu()->objectName())));
    }
    titles = with_access_keys(titles);
    for (qsizetype i = 0; i < bar.size(); ++i) {
        bar[i]->setText(titles[i]);
    }
}

void main_menu::refresh_recent_entries() {
    for (std::size_t index = 0; index < recent_.size(); ++index) {
        const std::string& caption = context_.kavetta.app_state.mnufileprev[index];
        recent_.at(index)->setText(literal_text(caption));
        recent_.at(index)->setVisible(holds_a_project(caption));
    }
}

/// Without a server there is nothing to check against.
void main_menu::refresh_updates() {
    const app_state& state = context_.kavetta.app_state;
    const bool is_on = !state.update_server.empty();
    actions_["mnuupdates"]->setVisible(is_on);
    actions_["mnuupdates"]->setEnabled(is_on);
    actions_["mnuupdatesauto"]->setChecked(state.auto_updates);
}

}  // namespace kvt
