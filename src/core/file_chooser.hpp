// file_chooser: the file dialogs, from the title to the chosen path.
#pragma once

#include <optional>
#include <string>

namespace kvt {

/// What a file dialog shall show. Texts are UTF-8.
struct file_dialog {
    bool saving = false;
    std::string title;
    std::string folder;             ///< empty: the platform's own memory of the last folder
    std::string filter;             ///< "All files|*.*|KVT|*.KVT"
    int filter_index = 2;           ///< 1-based
    std::string default_extension;  ///< without the point
    std::string file_name;          ///< initial file name
    int flags = 0;                  ///< 4 hides the read-only box, 2 asks before overwriting
};

class file_chooser {
  public:
    virtual ~file_chooser() = default;

    /// The chosen full path, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> choose_file(const file_dialog& dialog) = 0;
};

}  // namespace kvt
