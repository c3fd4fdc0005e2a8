#include "ui/shell/file_dialog_rows.hpp"

#include "app/files/file_ending.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

namespace kvt {

namespace {

/// "*.stp;*.step" gives "*.stp *.step".
QString name_pattern(QString pattern) {
    if (pattern == "*.*") {
        return "*";
    }
    pattern.replace(';', ' ');
    return pattern == pattern.toLower() ? pattern : pattern + " " + pattern.toLower();
}

/// "STEP (*.stp *.step)" gives "stp" and "step"; nothing for a row of all files.
QStringList endings_of_row(const QString& row) {
    static const QRegularExpression ENDING("\\*\\.(\\w+)");
    QStringList endings;
    for (auto found = ENDING.globalMatch(row); found.hasNext();) {
        endings.append(found.next().captured(1));
    }
    return endings;
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

void set_up(QFileDialog& box, const file_dialog& dialog) {
    box.setWindowTitle(qt_text(dialog.title));
    box.setAcceptMode(dialog.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(dialog.saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    box.setOption(QFileDialog::DontConfirmOverwrite,
                  dialog.saving && (dialog.flags & OVERWRITE_PROMPT) == 0);
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

QString row_with_ending_of(const QString& name, const QStringList& rows) {
    const QString ending = QFileInfo(name).suffix();
    for (const QString& row : rows) {
        if (endings_of_row(row).contains(ending, Qt::CaseInsensitive)) {
            return row;
        }
    }
    return {};
}

QString ending_of_row(const QString& row) {
    return endings_of_row(row).value(0);
}

QString with_ending_of_row(const QString& name, const QFileDialog& box,
                           const std::string& extension) {
    if (!row_with_ending_of(name, box.nameFilters()).isEmpty()) {
        return name;
    }
    const QString of_row = ending_of_row(box.selectedNameFilter());
    return qt_text(with_ending(utf8_text(name), of_row.isEmpty() ? extension : utf8_text(of_row)));
}

}  // namespace kvt
