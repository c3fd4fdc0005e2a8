#include "ui/parts/design_popup.hpp"

#include "core/text_table.hpp"
#include "ui/shell/access_keys.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>

#include <string>

namespace kvt {

design_popup::design_popup(std::int16_t language, QWidget* picture) : QMenu(picture) {
    setObjectName("viewpopupmenu");
    for (const sight_tick_row& row : sight_tick_rows()) {
        QAction* entry = add(std::string(row.entry).c_str(), language);
        entry->setCheckable(true);
        connect(entry, &QAction::triggered, this, [this, &row](bool on) { emit ticked(row, on); });
    }
    addSeparator();
    QAction* copy = add("popupcopy", language);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    picture->addAction(copy);
    connect(copy, &QAction::triggered, this, &design_popup::copy_asked);
    connect(add("popupsave", language), &QAction::triggered, this, &design_popup::save_asked);
    give_access_keys(*this);
}

void design_popup::show_ticks(const sight_ticks& ticks) {
    for (const sight_tick_row& row : sight_tick_rows()) {
        findChild<QAction*>(std::string(row.entry).c_str())->setChecked(ticks.*row.tick);
    }
}

QAction* design_popup::add(const char* name, std::int16_t language) {
    QAction* entry = addAction(qt_text(form_text("viewpopupmenu", name, language)));
    entry->setObjectName(name);
    return entry;
}

}  // namespace kvt
