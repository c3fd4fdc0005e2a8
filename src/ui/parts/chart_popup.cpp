#include "ui/parts/chart_popup.hpp"

#include "core/text_table.hpp"
#include "ui/shell/access_keys.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace kvt {

chart_popup::chart_popup(std::int16_t language, QWidget* chart, Qt::ShortcutContext keys)
    : QMenu(chart) {
    setObjectName("graphpopupmenu");
    add("popupcopy", QKeySequence::Copy, &chart_popup::copy_asked, language);
    add("popupprint", QKeySequence::Print, &chart_popup::print_asked, language);
    add("popupsave", {}, &chart_popup::save_asked, language);
    add("popupexport", Qt::CTRL | Qt::Key_E, &chart_popup::export_asked, language);
    addSeparator();
    add("popupclose", Qt::Key_Escape, &chart_popup::close_asked, language);
    for (QAction* entry : actions()) {
        entry->setShortcutContext(keys);
    }
    chart->addActions(actions());
    popupsave_ = findChild<QAction*>("popupsave");
    connect(this, &chart_popup::copy_asked, this, [this] { has_copied_ = true; });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &chart_popup::refresh_save);
    connect(this, &QMenu::aboutToShow, this, &chart_popup::refresh_save);
    refresh_save();
    give_access_keys(*this);
}

void chart_popup::add(const char* name, const QKeySequence& keys, request asked,
                      std::int16_t language) {
    QAction* entry = addAction(qt_text(form_text("graphpopupmenu", name, language)));
    entry->setObjectName(name);
    entry->setShortcut(keys);
    connect(entry, &QAction::triggered, this, asked);
}

void chart_popup::refresh_save() {
    const QMimeData* on_it = QGuiApplication::clipboard()->mimeData();
    popupsave_->setEnabled(has_copied_ && on_it != nullptr && on_it->hasImage());
}

}  // namespace kvt
