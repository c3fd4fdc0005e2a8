#include "ui/shell/window_menu.hpp"

#include "core/window_rectangles.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace kvt {

window_menu::window_menu(form_context context, QMainWindow& window)
    : QObject(&window), context_(context) {
    auto* menu = window.findChild<QMenu*>("mnuwindow");
    for (const window_rectangle_field& field : window_rectangle_fields()) {
        const QString form = qt_text(field.name);
        QAction* entry = menu->addAction(form);
        entry->setObjectName("mnuwindow_" + form);
        connect(entry, &QAction::triggered, this, [this, form] { emit chosen(form); });
        entries_.append(entry);
    }
}

void window_menu::refresh() {
    for (qsizetype index = 0; index < entries_.size(); ++index) {
        const std::string_view form =
            window_rectangle_fields()[static_cast<std::size_t>(index)].name;
        entries_[index]->setText(caption_of(context_.kavetta, form, "").replace('&', "&&"));
    }
}

}  // namespace kvt
