// The file dialog that a command asks for, shown with Qt.
#pragma once

#include "core/file_chooser.hpp"

#include <optional>
#include <string>

class QWidget;

namespace kvt {

/// Shows the dialog. A name that doesn't end in the dialog's extension gets it (see with_ending),
/// but for a folder, and in an Open dialog for a file that is there; without an extension of the
/// dialog the ending is one of its filter's, that of the chosen row where none was typed. The
/// chosen full path, or nothing when it was cancelled.
std::optional<std::string> run_file_dialog(const file_dialog& dialog, QWidget* parent);

}  // namespace kvt
