#include "app/study/study_files.hpp"

#include "app/desk/program_title.hpp"
#include "app/files/project_entries.hpp"
#include "app/files/saved_text.hpp"
#include "app/program.hpp"
#include "app/stages/silent_user.hpp"
#include "app/study/study_problem.hpp"
#include "app/study/study_text.hpp"
#include "base/path_text.hpp"
#include "core/failure_text.hpp"
#include "core/text_table.hpp"

#include <cstddef>
#include <filesystem>
#include <system_error>

namespace kvt {

namespace {

std::string_view text_named(const program& kavetta, std::string_view name) {
    return form_text("study_form", name, kavetta.app_state.language);
}

file_dialog save_dialog(const program& kavetta, std::string_view title, std::string_view filter,
                        std::string_view extension) {
    file_dialog dialog = save_text_dialog(text_named(kavetta, title), filter, extension);
    dialog.file_name = kavetta.app_state.project_name + "." + std::string(extension);
    return dialog;
}

/// "NAME 2.KVT" of "NAME.KVT", or the next number whose file is not there yet.
std::string next_free(const std::string& path, std::size_t& number) {
    const std::size_t point = path.rfind('.');
    const std::string ending = point == std::string::npos ? "" : path.substr(point);
    std::string numbered;
    std::error_code ignored;
    do {
        ++number;
        numbered = path.substr(0, point) + " " + std::to_string(number) + ending;
    } while (std::filesystem::exists(path_of_utf8(numbered), ignored));
    return numbered;
}

}  // namespace

std::optional<study_document> open_study(const program& kavetta, user& person) {
    file_dialog dialog;
    dialog.title = program_title() + std::string(text_named(kavetta, "open_title"));
    dialog.filter = text_named(kavetta, "study_files");
    dialog.default_extension = "KVTstudy";
    dialog.flags = HIDE_READ_ONLY;
    const std::optional<std::string> path = ask_beside_project(kavetta, person, dialog);
    if (!path) {
        return std::nullopt;
    }
    try {
        return read_study(path_of_utf8(*path), kavetta);
    } catch (const study_problem& problem) {
        person.show_message(problem.text(kavetta.app_state.language));
    } catch (const run_time_error& error) {
        person.show_message(*path + ": " + failure_text(error, kavetta.app_state.language));
    }
    return std::nullopt;
}

void save_study(const program& kavetta, user& person, const study_document& document) {
    const std::optional<std::string> path = ask_beside_project(
        kavetta, person,
        save_dialog(kavetta, "save_title", text_named(kavetta, "study_files"), "KVTstudy"));
    if (path) {
        tell_outcome(person, save_whole(kavetta, *path, [&] {
                         write_study(path_of_utf8(*path), kavetta, document);
                     }));
    }
}

void save_study_table(const program& kavetta, user& person, const study& designs,
                      const std::vector<study_row>& rows) {
    const std::optional<saved_text> saved = ask_and_save_bytes(
        kavetta, person,
        save_dialog(kavetta, "table_title", text_named(kavetta, "table_files"), "csv"),
        [&](const std::string& path) {
            return table_text(
                designs, rows,
                path.ends_with(".jsonl") ? study_format::json_lines : study_format::csv);
        });
    if (saved) {
        tell_outcome(person, *saved);
    }
}

void save_study_projects(const program& kavetta, user& person, const study& designs,
                         const std::vector<study_row>& rows) {
    const std::optional<std::string> path = ask_beside_project(
        kavetta, person,
        save_dialog(kavetta, "projects_title",
                    message_text(message::project_filter, kavetta.app_state.language), "KVT"));
    if (!path) {
        return;
    }
    std::size_t number = 1;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string numbered_path = i == 0 ? *path : next_free(*path, number);
        const saved_text saved = save_whole(kavetta, numbered_path, [&] {
            write_entries(with_typed_texts(designs, rows[i].texts), numbered_path);
        });
        tell_outcome(person, saved);
        if (!saved.is_whole) {
            return;
        }
    }
}

program with_typed_texts(const study& designs, const std::vector<std::string>& texts) {
    program typed = designs.base();
    silent_user person;
    for (const typed_entry& entry : typed_entries(designs.plan().variables, texts)) {
        type_entry(typed, person, entry);
    }
    return typed;
}

}  // namespace kvt
