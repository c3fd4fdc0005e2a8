#include "ui/shell/window_menu.hpp"

#include "app/models/shown_models.hpp"
#include "app/program.hpp"
#include "core/form_table.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>
#include <array>

namespace kvt {

namespace {

/// What they show stands while the charts can be drawn.
constexpr std::array<const char*, 2> OF_RESULTS = {"perf_res", "result_tables"};

constexpr const char* OF_MODELS = "model_view";

/// What it shows stands once there are rotors.
constexpr const char* EXACT_FIGURES = "exact_figures";

constexpr const char* STUDY = "study_form";

bool can_be_shown(const program& kavetta, const QString& form) {
    if (form == EXACT_FIGURES) {
        return kavetta.exact_record.source->has_rotors;
    }
    if (form == OF_MODELS) {
        return !built_documents(kavetta).empty();
    }
    const bool shows_results = std::ranges::find(OF_RESULTS, form) != OF_RESULTS.end();
    return !shows_results || kavetta.enabling.create_charts;
}

}  // namespace

window_menu::window_menu(form_context context, QMainWindow& window)
    : QObject(&window), context_(context) {
    auto* menu = window.findChild<QMenu*>("mnuwindow");
    for (const form_row& row : fixed_child_rows()) {
        add_entry(*menu, qt_text(row.name));
    }
    for (const char* form : OF_RESULTS) {
        add_entry(*menu, form);
    }
    add_entry(*menu, EXACT_FIGURES);
    add_entry(*menu, OF_MODELS);
    add_entry(*menu, STUDY);
}

void window_menu::add_entry(QMenu& menu, const QString& form) {
    QAction* entry = menu.addAction(form);
    entry->setObjectName("mnuwindow_" + form);
    connect(entry, &QAction::triggered, this, [this, form] { emit chosen(form); });
    entries_.emplace_back(form, entry);
}

void window_menu::refresh() {
    for (const auto& [form, entry] : entries_) {
        entry->setText(caption_of(context_.kavetta, utf8_text(form), "").replace('&', "&&"));
        entry->setEnabled(can_be_shown(context_.kavetta, form));
    }
}

}  // namespace kvt
