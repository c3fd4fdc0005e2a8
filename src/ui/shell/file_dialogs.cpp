#include "ui/shell/file_dialogs.hpp"

#include "ui/shell/qt_text.hpp"

#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

namespace kvt {

namespace {

/// The flag with which a save dialog asks before a file is overwritten.
constexpr int OVERWRITE_PROMPT = 2;

QString name_pattern(const QString& pattern) {
    if (pattern == "*.*") {
        return "*";
    }
    return pattern == pattern.toLower() ? pattern : pattern + " " + pattern.toLower();
}

void set_up(QFileDialog& box, const file_dialog& dialog) {
    box.setWindowTitle(qt_text(dialog.title));
    box.setAcceptMode(dialog.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(dialog.saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    box.setOption(QFileDialog::DontConfirmOverwrite,
                  dialog.saving && (dialog.flags & OVERWRITE_PROMPT) == 0);
    box.setDefaultSuffix(qt_text(dialog.default_extension));
    const QStringList filters = name_filters(dialog.filter);
    box.setNameFilters(filters);
    if (dialog.filter_index >= 1 && dialog.filter_index <= filters.size()) {
        box.selectNameFilter(filters[dialog.filter_index - 1]);
    }
    if (!dialog.folder.empty()) {
        box.setDirectory(qt_text(dialog.folder));
    }
    if (!dialog.file_name.empty()) {
        box.selectFile(qt_text(dialog.file_name));
    }
}

/// Names in full: the list has a row a file, its first column as wide as the longest name.
void show_whole_names(QFileDialog& box) {
    box.setViewMode(QFileDialog::Detail);
    if (auto* list = box.findChild<QTreeView*>("treeView")) {
        list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
        list->setTextElideMode(Qt::ElideNone);
    }
}

}  // namespace

QStringList name_filters(std::string_view filter) {
    const QStringList parts = qt_text(filter).split('|');
    QStringList filters;
    for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
        filters.append(parts[index] + " (" + name_pattern(parts[index + 1]) + ")");
    }
    return filters;
}

std::optional<std::string> run_file_dialog(const file_dialog& dialog, QWidget* parent) {
    QFileDialog box(parent);
    set_up(box, dialog);
    show_whole_names(box);
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return utf8_text(box.selectedFiles().constFirst());
}

}  // namespace kvt
