#include "app/files/saved_text.hpp"

#include "app/desk/program_title.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "core/failure_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

std::string outcome_line(const std::string& path, const std::optional<text_failure>& failed,
                         std::int16_t language) {
    const auto text = [language](message id) { return std::string(message_text(id, language)); };
    if (!failed) {
        return text(message::file_written) + path;
    }
    const std::string reason = failure_text(failed->error, language);
    if (failed->is_there) {
        return incomplete_line(path, reason, language);
    }
    return text(message::save_failed) + path + ": " + reason;
}

/// Nothing of the file is there after a failure.
std::optional<text_failure> failure_of(const std::function<void()>& save) {
    try {
        save();
    } catch (const run_time_error& error) {
        return text_failure{error, false};
    }
    return std::nullopt;
}

std::optional<saved_text> ask_and_save(
    const program& kavetta, user& person, const file_dialog& dialog,
    const std::function<std::optional<text_failure>(const std::string& path)>& save) {
    const std::optional<std::string> path = ask_beside_project(kavetta, person, dialog);
    if (!path) {
        return std::nullopt;
    }
    const std::optional<text_failure> failed = save(*path);
    return saved_text{*path, outcome_line(*path, failed, kavetta.app_state.language), !failed};
}

}  // namespace

std::optional<text_failure> save_text(const std::string& path, const text_writer& write,
                                      disk_write kind) {
    std::optional<text_failure> failed;
    text_lines text;
    try {
        write(text);
    } catch (const run_time_error& error) {
        failed = text_failure{error, true};
    }
    const auto not_saved = failure_of([&] { write_file(path_of_utf8(path), text.bytes(), kind); });
    return not_saved ? not_saved : failed;
}

std::string incomplete_line(const std::string& path, std::string_view reason,
                            std::int16_t language) {
    return std::string(message_text(message::file_incomplete, language)) + path + ": " +
           std::string(reason);
}

file_dialog save_text_dialog(std::string_view title_suffix, std::string_view filter,
                             std::string_view extension) {
    file_dialog dialog;
    dialog.saving = true;
    dialog.title = program_title() + std::string(title_suffix);
    dialog.filter = filter;
    dialog.filter_index = 2;
    dialog.default_extension = extension;
    dialog.flags = OVERWRITE_PROMPT;
    return dialog;
}

void tell_outcome(user& person, const saved_text& saved) {
    if (saved.is_whole) {
        person.show_status(saved.outcome);
    } else {
        person.show_message(saved.outcome);
    }
}

std::optional<saved_text> ask_and_save_text(
    const program& kavetta, user& person, const file_dialog& dialog,
    const std::function<void(text_lines&, const std::string& path)>& write) {
    return ask_and_save(kavetta, person, dialog, [&](const std::string& path) {
        return save_text(path, [&](text_lines& text) { write(text, path); });
    });
}

std::optional<saved_text> ask_and_save_bytes(
    const program& kavetta, user& person, const file_dialog& dialog,
    const std::function<std::string(const std::string& path)>& bytes_of) {
    return ask_and_save(kavetta, person, dialog, [&](const std::string& path) {
        return failure_of([&] { write_file(path_of_utf8(path), bytes_of(path)); });
    });
}

std::optional<std::string> ask_beside_project(const program& kavetta, file_chooser& person,
                                              file_dialog dialog) {
    dialog.folder = project_folder(kavetta);
    std::optional<std::string> path = person.choose_file(dialog);
    return path && path->empty() ? std::nullopt : path;
}

saved_text save_whole(const program& kavetta, const std::string& path,
                      const std::function<void()>& save) {
    const std::optional<text_failure> failed = failure_of(save);
    return {path, outcome_line(path, failed, kavetta.app_state.language), !failed};
}

}  // namespace kvt
