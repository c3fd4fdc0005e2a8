#include "ui/shell/system_file_dialog.hpp"

#include "ui/shell/file_dialog_rows.hpp"
#include "ui/shell/qt_path.hpp"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace kvt {

namespace {

/// The system asked about the chosen name, not about the one with its ending.
bool may_replace(const QFileDialog& box, const QString& chosen, const QString& whole) {
    if (whole == chosen || box.testOption(QFileDialog::DontConfirmOverwrite) ||
        !QFileInfo::exists(whole)) {
        return true;
    }
    const QString question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?");
    return QMessageBox::warning(
               box.parentWidget(), box.windowTitle(), question.arg(QFileInfo(whole).fileName()),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

std::optional<std::string> run_system_file_dialog(const file_dialog& dialog, QWidget* parent) {
    file_dialog asked = dialog;
    while (true) {
        QFileDialog box(parent);
        set_up(box, asked);
        box.setDefaultSuffix(qt_text(asked.default_extension));
        if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) {
            return std::nullopt;
        }
        const QString chosen = box.selectedFiles().constFirst();
        const QString whole =
            asked.saving ? with_ending_of_row(chosen, box, asked.default_extension) : chosen;
        if (may_replace(box, chosen, whole)) {
            return native_path_text(whole);
        }
        asked.folder = utf8_text(QFileInfo(whole).path());
        asked.file_name = utf8_text(QFileInfo(whole).fileName());
    }
}

}  // namespace kvt
