// Qt's own file dialog, as there may be no desktop that has one.
#include "ui/shell/file_dialogs.hpp"

#include "ui/shell/file_dialog_rows.hpp"
#include "ui/shell/qt_path.hpp"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

#include <utility>

namespace kvt {

namespace {

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

    void change_ending(const QString& filter) {
        const QString name = name_box()->text();
        const QString row = row_with_ending_of(name, nameFilters());
        const QString ending = ending_of_row(filter);
        if (!row.isEmpty() && row != filter && !ending.isEmpty()) {
            name_box()->setText(name.chopped(QFileInfo(name).suffix().size()) + ending);
        }
    }

    /// A folder is gone into, and Open takes a file without the ending when there is one.
    void complete_name() {
        const QString typed = name_box()->text();
        const QString ending = with_ending_of_row(typed, *this, extension_);
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

/// Names in full: the list has a row a file, its first column as wide as the longest name.
void show_whole_names(QFileDialog& box) {
    box.setViewMode(QFileDialog::Detail);
    if (auto* list = box.findChild<QTreeView*>("treeView")) {
        list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
        list->setTextElideMode(Qt::ElideNone);
    }
}

}  // namespace

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
