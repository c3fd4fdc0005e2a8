// The file dialog of the system, or Qt's own where it has none.
#pragma once

#include "core/file_chooser.hpp"

#include <optional>
#include <string>

class QWidget;

namespace kvt {

/// As run_file_dialog. The system adds endings in a way of its own, and asks about the name that it
/// has then; a name that still lacks its ending gets it here, and a file of that name is asked
/// about. After No the dialog is shown once more.
std::optional<std::string> run_system_file_dialog(const file_dialog& dialog, QWidget* parent);

}  // namespace kvt
