// A file that a writer appends to a text: saved as far as the writer got.
#pragma once

#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "core/file_chooser.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kvt {

class user;
struct program;

using text_writer = std::function<void(text_lines&)>;

/// Why a file is not whole.
struct text_failure {
    run_time_error error;
    bool is_there;  ///< the file stands, as far as its writer got
};

/// Runs the writer and saves what it appended, also when it failed. Answers the failure of the
/// writer or of saving.
std::optional<text_failure> save_text(const std::string& path, const text_writer& write,
                                      disk_write kind = disk_write::flushed);

/// The dialog of every written file: the program's title with the suffix, the second row of the
/// filter chosen, and a question before a file is overwritten.
file_dialog save_text_dialog(std::string_view title_suffix, std::string_view filter,
                             std::string_view extension);

/// "Incomplete: PATH: REASON", "Unvollständig: ..." for language 2.
std::string incomplete_line(const std::string& path, std::string_view reason,
                            std::int16_t language);

/// What became of a file: "Written: PATH", "Incomplete: ..." or why it could not be saved, for the
/// status bar.
struct saved_text {
    std::string path;
    std::string outcome;
    bool is_whole = true;  ///< written as it should be
};

/// A file that is whole in the status bar, anything else in a box.
void tell_outcome(user& person, const saved_text& saved);

/// The dialog's answer, starting in the project's folder, then save_text. A cancelled dialog or an
/// empty name writes nothing and answers nothing; a failure ends in the outcome, without a message.
std::optional<saved_text> ask_and_save_text(
    const program& kavetta, user& person, const file_dialog& dialog,
    const std::function<void(text_lines&, const std::string& path)>& write);

/// The same for a file that is made at once, of the bytes that belong to the path: all of it or,
/// when they can't be made either, nothing.
std::optional<saved_text> ask_and_save_bytes(
    const program& kavetta, user& person, const file_dialog& dialog,
    const std::function<std::string(const std::string& path)>& bytes_of);

/// The dialog's answer, starting in the project's folder; nothing when it was cancelled or empty.
std::optional<std::string> ask_beside_project(const program& kavetta, file_chooser& person,
                                              file_dialog dialog);

/// What became of a file that `save` writes by itself, all of it or nothing; it throws
/// run_time_error when it can't.
saved_text save_whole(const program& kavetta, const std::string& path,
                      const std::function<void()>& save);

}  // namespace kvt
