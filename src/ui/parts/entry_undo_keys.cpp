#include "ui/parts/entry_undo_keys.hpp"

#include "core/entries.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

namespace kvt {

namespace {

/// The box of an entry, or nullptr.
QLineEdit* entry_box(QObject* watched) {
    auto* box = qobject_cast<QLineEdit*>(watched);
    return box != nullptr && find_entry(utf8_text(box->objectName())) != nullptr ? box : nullptr;
}

bool undoes(const QKeyEvent& event) {
    const QKeyCombination keys = event.keyCombination();
    return keys == (Qt::CTRL | Qt::Key_Z) || keys == (Qt::CTRL | Qt::Key_Y) ||
           keys == (Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
}

}  // namespace

entry_undo_keys::entry_undo_keys() {
    qApp->installEventFilter(this);
}

bool entry_undo_keys::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress &&
        type != QEvent::ContextMenu) {
        return false;
    }
    QLineEdit* box = entry_box(watched);
    if (box == nullptr) {
        return false;
    }
    if (type == QEvent::ContextMenu) {
        show_popup_menu(*box, *static_cast<QContextMenuEvent*>(event));
        return true;
    }
    // Nobody accepts the key, so the menu's entry has it; without a step to undo nothing happens.
    return undoes(*static_cast<QKeyEvent*>(event));
}

/// The menu of every box without its first group, its own Undo and Redo.
void entry_undo_keys::show_popup_menu(QLineEdit& box, const QContextMenuEvent& event) {
    QMenu* menu = box.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    bool is_own_group = !box.isReadOnly();
    for (QAction* action : menu->actions()) {
        if (is_own_group) {
            is_own_group = !action->isSeparator();
            delete action;
        }
    }
    menu->popup(event.globalPos());
}

}  // namespace kvt
