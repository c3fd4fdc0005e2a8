#include "ui/shell/window_menu.hpp"

#include "core/form_table.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace kvt {

window_menu::window_menu(form_context context, QMainWindow& window)
    : QObject(&window), context_(context) {
    auto* menu = window.findChild<QMenu*>("mnuwindow");
    for (const form_row& row : form_rows()) {
        if (!is_fixed_child(row)) {
            continue;
        }
        const QString form = qt_text(row.name);
        QAction* entry = menu->addAction(form);
        entry->setObjectName("mnuwindow_" + form);
        connect(entry, &QAction::triggered, this, [this, form] { emit chosen(form); });
        entries_.emplace_back(&row, entry);
    }
}

void window_menu::refresh() {
    for (const auto& [form, entry] : entries_) {
        entry->setText(caption_of(context_.kavetta, form->name, "").replace('&', "&&"));
    }
}

}  // namespace kvt
