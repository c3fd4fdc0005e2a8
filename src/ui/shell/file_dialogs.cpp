#include "ui/shell/file_dialogs.hpp"

#include "app/files/file_ending.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTreeView>

#include <utility>

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
QStringList endings_of_filter(const QString& filter) {
    static const QRegularExpression ENDING("\\*\\.(\\w+)");
    QStringList endings;
    for (auto found = ENDING.globalMatch(filter); found.hasNext();) {
        endings.append(found.next().captured(1));
    }
    return endings;
}

/// The ending that a name gets from a row; empty for a row of all files.
QString ending_of_filter(const QString& filter) {
    return endings_of_filter(filter).value(0);
}

/// A file dialog whose names end in the extension before it looks whether the file exists. Names
/// are read from its own box, so it is not the desktop's dialog. Each row of the filter brings an
/// extension; a name keeps the ending of any of them, and choosing a row changes it. In a row of
/// all files a name gets the extension of the dialog.
class ending_dialog : public QFileDialog {
  public:
    ending_dialog(std::string extension, QWidget* parent)
        : QFileDialog(parent), extension_(std::move(extension)) {
        setOption(QFileDialog::DontUseNativeDialog);
        connect(this, &QFileDialog::filterSelected, this, &ending_dialog::change_ending);
    }

  protected:
    void accept() override {
        complete_name();
        QFileDialog::accept();
    }

  private:
    bool exists(const QString& name) const {
        return QFileInfo::exists(directory().absoluteFilePath(name));
    }

    QLineEdit* name_box() const { return findChild<QLineEdit*>("fileNameEdit"); }

    /// The row of the filter whose ending a name has; empty without one.
    QString filter_with_ending_of(const QString& name) const {
        const QString ending = QFileInfo(name).suffix();
        for (const QString& filter : nameFilters()) {
            if (endings_of_filter(filter).contains(ending, Qt::CaseInsensitive)) {
                return filter;
            }
        }
        return {};
    }

    void change_ending(const QString& filter) {
        const QString name = name_box()->text();
        const QString row = filter_with_ending_of(name);
        if (!row.isEmpty() && row != filter && !endings_of_filter(filter).isEmpty()) {
            name_box()->setText(name.chopped(QFileInfo(name).suffix().size()) +
                                ending_of_filter(filter));
        }
    }

    /// The extension that a name lacks, if any.
    std::string extension_for(const QString& name) const {
        if (!filter_with_ending_of(name).isEmpty()) {
            return {};
        }
        const QString of_row = ending_of_filter(selectedNameFilter());
        return of_row.isEmpty() ? extension_ : utf8_text(of_row);
    }

    /// A folder is gone into, and Open takes a file without the ending when there is one.
    void complete_name() {
        const QString typed = name_box()->text();
        const QString ending = qt_text(with_ending(utf8_text(typed), extension_for(typed)));
        const bool is_folder = QFileInfo(directory().absoluteFilePath(typed)).isDir();
        const bool is_opened = acceptMode() == AcceptOpen && (exists(typed) || !exists(ending));
        if (ending == typed || is_folder || is_opened) {
            return;
        }
        // A marked row of the list would count more than the name.
        findChild<QAbstractItemView*>("listView")->selectionModel()->clearSelection();
        name_box()->setText(ending);
    }

    std::string extension_;
};

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
    ending_dialog box(dialog.default_extension, parent);
    set_up(box, dialog);
    show_whole_names(box);
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return native_path_text(box.selectedFiles().constFirst());
}

}  // namespace kvt
