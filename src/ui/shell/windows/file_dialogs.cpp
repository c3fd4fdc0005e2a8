#include "ui/shell/file_dialogs.hpp"

#include "ui/shell/system_file_dialog.hpp"

namespace kvt {

std::optional<std::string> run_file_dialog(const file_dialog& dialog, QWidget* parent) {
    return run_system_file_dialog(dialog, parent);
}

}  // namespace kvt
