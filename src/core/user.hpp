// user: the person on the other side of a command. The desktop program answers with windows, the
// batch program with options and standard error, a test with a script.
#pragma once

#include "core/teller.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

enum class answer { yes, no, cancel };
enum class question_buttons { yes_no, yes_no_cancel };

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

/// What the user chose at the start prompt.
enum class start_choice { neither, new_project, open_project };

class user : public teller {
  public:
    virtual answer ask(std::string_view question, question_buttons buttons) = 0;
    /// The chosen full path, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> choose_file(const file_dialog& dialog) = 0;
    /// The New Project dialog: the typed name for OK, nothing for Cancel.
    virtual std::optional<std::string> ask_project_name() = 0;
    /// The prompt Form2, new or open.
    virtual start_choice ask_new_or_open() = 0;
    /// A line that needs no answer, e.g. in the status bar.
    virtual void show_status(std::string_view text) = 0;

    virtual void show_form(std::string_view form) = 0;
    /// Closes and forgets a form; nothing happens when it is not open.
    virtual void unload_form(std::string_view form) = 0;
    virtual void set_busy(bool busy) = 0;
    /// Progress of long work, 0 .. 100.
    virtual void show_progress(std::string_view text, int percent) = 0;
};

}  // namespace kvt
