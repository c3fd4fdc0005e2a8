#include "ui/parts/entry_focus.hpp"

#include "core/entries.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

namespace kvt {

namespace {

std::string entry_name(const QWidget* widget) {
    if (qobject_cast<const QLineEdit*>(widget) == nullptr) {
        return {};
    }
    const std::string name = utf8_text(widget->objectName());
    return find_entry(name) == nullptr ? std::string() : name;
}

bool is_menu(const QWidget* widget) {
    return qobject_cast<const QMenuBar*>(widget) != nullptr ||
           qobject_cast<const QMenu*>(widget) != nullptr;
}

}  // namespace

entry_focus::entry_focus(command_runner& runner) : runner_(runner) {
    connect(qApp, &QApplication::focusChanged, this, &entry_focus::focus_changed);
}

void entry_focus::focus_changed(QWidget*, QWidget* now) {
    if (now == nullptr || now == entry_ || is_menu(now) ||
        (entry_ != nullptr && now->window() != entry_->window())) {
        return;
    }
    if (entry_ != nullptr) {
        runner_.leave(entry_name(entry_));
    }
    const std::string name = entry_name(now);
    entry_ = name.empty() ? nullptr : now;
    runner_.use_entry(name);
}

}  // namespace kvt
