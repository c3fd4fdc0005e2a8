// file_chooser: the file dialogs, from the title to the chosen path.
#pragma once

#include <optional>
#include <string>

namespace kvt {

/// Flags of a file dialog.
inline constexpr int OVERWRITE_PROMPT = 2;  ///< a save dialog asks before a file is overwritten
inline constexpr int HIDE_READ_ONLY = 4;    ///< an open dialog has no read-only box

/// What a file dialog shall show. Texts are UTF-8.
struct file_dialog {
    bool saving = false;
    std::string title;
    std::string folder;    ///< empty: the platform's own memory of the last folder
    std::string filter;    ///< "All files|*.*|KVT|*.KVT"
    int filter_index = 2;  ///< 1-based
    /// Without the point. Empty: that of the row of the filter that is chosen.
    std::string default_extension;
    std::string file_name;  ///< initial file name
    int flags = 0;          ///< OVERWRITE_PROMPT, HIDE_READ_ONLY
};

class file_chooser {
  public:
    virtual ~file_chooser() = default;

    /// The chosen full path, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> choose_file(const file_dialog& dialog) = 0;
};

}  // namespace kvt
