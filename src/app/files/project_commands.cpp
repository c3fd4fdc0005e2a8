#include "app/files/project_commands.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/program_title.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/desk/unit_commands.hpp"
#include "app/files/project_entries.hpp"
#include "app/files/project_reset.hpp"
#include "app/files/whole_load.hpp"
#include "app/program.hpp"
#include "app/stages/design_assist.hpp"
#include "base/code_page.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/utf8_text.hpp"
#include "base/whole_file.hpp"
#include "core/recent_list.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <string>
#include <utility>

namespace kvt {

namespace {

file_dialog project_dialog(const program& kavetta, std::string_view title_end) {
    file_dialog dialog;
    dialog.title = program_title() + std::string(title_end);
    dialog.filter = message_text(message::project_filter, kavetta.app_state.language);
    dialog.filter_index = 2;
    dialog.default_extension = "KVT";
    return dialog;
}

void show_done_status(const program& kavetta, user& person, message id, std::string_view path) {
    person.show_status(std::string(message_text(id, kavetta.app_state.language)) +
                       std::string(path));
}

void bind_to_file(program& kavetta) {
    kavetta.labels.title = project_title(kavetta.app_state.project_name);
    kavetta.app_state.project_has_file = true;
}

void remember_projects_folder(program& kavetta) {
    kavetta.app_state.projects_folder = existing_folder_of(kavetta, kavetta.app_state.project_path);
}

/// load_project, or nothing at all.
void load_whole_project(program& kavetta, user& person, std::string_view path) {
    load_whole(kavetta, [&] { load_project(kavetta, person, path); });
    remember_projects_folder(kavetta);
    show_done_status(kavetta, person, message::project_opened, path);
}

/// Open from step 4 on. The settings are saved at once so that the list survives a crash; when that
/// fails the project is open all the same.
void load_and_remember(program& kavetta, user& person, std::string_view path) {
    load_whole_project(kavetta, person, path);
    try {
        save_settings(kavetta);
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::save_failed, error);
    }
}

/// The name without its last four characters, whatever they are; empty for four characters or
/// fewer.
std::string without_last_four(std::string name) {
    for (int cut = 0; cut < 4; ++cut) {
        drop_last_character(name);
    }
    return name;
}

/// Line 2 has "?" for what the code page doesn't hold. A name that Save As took from the file's
/// name is found there whole.
void restore_name_of_file(app_state& state) {
    const std::string name = without_last_four(file_name_of_path(state.project_path));
    if (state.project_name == utf8_of_code_page(code_page_of_utf8(name))) {
        state.project_name = name;
    }
}

/// False when the user would rather change an entry with which the file could not be opened again.
bool is_saved_all_the_same(const program& kavetta, user& person) {
    const std::optional<unopenable_entry> entry = find_unopenable_entry(kavetta);
    if (!entry) {
        return true;
    }
    const std::int16_t language = kavetta.app_state.language;
    const std::string question =
        std::string(message_text(message::unopenable_because, language)) +
        std::string(row_text(*find_caption("Form1", entry->label), language)) +
        std::string(message_text(message::unopenable_save, language));
    if (person.ask(question, question_buttons::yes_no) == answer::yes) {
        return true;
    }
    person.set_focus(entry->box);
    return false;
}

/// Overwrites the file where it stands when its folder lets it do nothing else and the user agrees.
/// False when the user doesn't.
bool write_project_asking(const program& kavetta, user& person, const project_record& record) {
    const std::filesystem::path path = path_of_utf8(record.project_path);
    if (!is_only_written_in_place(path)) {
        write_file(path, write_project(record));
        return true;
    }
    const std::string question =
        record.project_path +
        std::string(message_text(message::write_in_place, kavetta.app_state.language));
    if (person.ask(question, question_buttons::yes_no) != answer::yes) {
        return false;
    }
    write_in_place(path, write_project(record));
    return true;
}

/// The project gets path and name once it is written. False when it was not.
bool write_project_as(program& kavetta, user& person, const std::string& path) {
    app_state& state = kavetta.app_state;
    project_record record = project_record_of(kavetta, path);
    record.project_name = without_last_four(file_name_of_path(path));
    if (!write_project_asking(kavetta, person, record)) {
        return false;
    }
    state.project_path = path;
    state.project_name = record.project_name;
    bind_to_file(kavetta);
    update_recent_list(state, path);
    remember_projects_folder(kavetta);
    note_saved_entries(kavetta);
    show_done_status(kavetta, person, message::project_saved, path);
    return true;
}

}  // namespace

std::optional<std::string> choose_project(const program& kavetta, user& person,
                                          std::string_view title_end, const std::string& folder) {
    file_dialog dialog = project_dialog(kavetta, title_end);
    dialog.folder = folder;
    dialog.flags = HIDE_READ_ONLY;
    std::optional<std::string> path = person.choose_file(dialog);
    return path && path->empty() ? std::nullopt : path;
}

void load_entries(program& kavetta, user& person, const std::string& path) {
    app_state& state = kavetta.app_state;
    const project_record record =
        read_project(read_file(path_of_utf8(path), LARGEST_TEXT), state.project_name);
    assign_project_record(kavetta, record);
    reset_results(kavetta, person);
}

void reset_results(program& kavetta, user& person) {
    set_unit_labels(kavetta, length_unit_of(kavetta.app_state));
    project_reset(kavetta, person, reset_kind::open_project);
    hide_assist(kavetta);
}

void load_project(program& kavetta, user& person, std::string_view path) {
    app_state& state = kavetta.app_state;
    state.project_path = path;
    load_entries(kavetta, person, state.project_path);
    restore_name_of_file(state);
    bind_to_file(kavetta);
    update_recent_list(state, state.project_path);
    note_new_entries(kavetta);
}

void open_project_file(program& kavetta, user& person, std::string_view path) {
    try {
        load_and_remember(kavetta, person, path);
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::open_failed, error);
    }
}

void open_project(program& kavetta, user& person) {
    try {
        find_projects_folder(kavetta);
        const std::optional<std::string> path = choose_project(
            kavetta, person, message_text(message::open_project_title, kavetta.app_state.language),
            kavetta.app_state.projects_folder);
        if (path) {
            load_and_remember(kavetta, person, *path);
        }
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::open_failed, error);
    }
}

void previous_design(program& kavetta, user& person, int index) {
    const std::string path = kavetta.app_state.mnufileprev[index];
    try {
        load_whole_project(kavetta, person, path);
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::open_failed, error);
    }
}

void save_project(program& kavetta, user& person) {
    if (!kavetta.app_state.project_has_file) {
        save_project_as(kavetta, person);
        return;
    }
    const std::string path = kavetta.app_state.project_path;
    try {
        if (!is_saved_all_the_same(kavetta, person) ||
            !write_project_asking(kavetta, person, project_record_of(kavetta, path))) {
            return;
        }
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::save_failed, error);
        return;
    }
    bind_to_file(kavetta);
    note_saved_entries(kavetta);
    show_done_status(kavetta, person, message::project_saved, path);
}

bool save_project_as(program& kavetta, user& person) {
    if (!is_saved_all_the_same(kavetta, person)) {
        return false;
    }
    try {
        find_projects_folder(kavetta);
        file_dialog dialog = project_dialog(
            kavetta, message_text(message::save_project_title, kavetta.app_state.language));
        dialog.saving = true;
        dialog.folder = kavetta.app_state.projects_folder;
        dialog.flags = OVERWRITE_PROMPT;
        dialog.file_name = kavetta.app_state.project_name;
        const std::optional<std::string> path = person.choose_file(dialog);
        if (!path || path->empty()) {
            return false;
        }
        return write_project_as(kavetta, person, *path);
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::save_failed, error);
        return false;
    }
}

void new_project(program& kavetta, user& person) {
    app_state& state = kavetta.app_state;
    if (const std::optional<std::string> name = person.ask_project_name()) {
        state.project_name = *name;
        kavetta.labels.hiddenprojnamelabel = *name;
        kavetta.labels.title = project_title(*name);
    }
    state.project_name = kavetta.labels.hiddenprojnamelabel;
    state.capacity_unit = 1;
    select_capacity_unit(kavetta, state.capacity_unit);
    clear_design(kavetta, person);
    state.project_has_file = false;
    kavetta.labels.title = project_title(state.project_name);
    project_reset(kavetta, person, reset_kind::new_project);
    hide_assist(kavetta);
    note_new_entries(kavetta);
}

}  // namespace kvt
