#include "app/desk/start_up.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/desk/unit_commands.hpp"
#include "app/desk/update_check.hpp"
#include "app/files/examples.hpp"
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "base/environment.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "core/capacity_unit.hpp"
#include "core/user.hpp"

#include <system_error>

namespace kvt {

namespace {

namespace fs = std::filesystem;

void create_folder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw run_time_error(failure::path_not_found, utf8_of_path(folder));
    }
}

void copy_missing(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (fs::exists(to, error)) {
        return;
    }
    write_file(to, read_file(from));
}

}  // namespace

fs::path program_folder() {
    const std::string named = environment_variable("KAVETTA_HOME").value_or("");
    return named.empty() ? user_data_folder() / "Kavetta" : fs::absolute(path_of_utf8(named));
}

void fill_program_folder(const fs::path& folder, const fs::path& share) {
    create_folder(folder);
    for (const char* delivered : {"projects", "images", "updates"}) {
        create_folder(folder / delivered);
    }
    std::error_code error;
    for (fs::recursive_directory_iterator file(share, error), end; !error && file != end;
         file.increment(error)) {
        const fs::path target = folder / file->path().lexically_relative(share);
        if (file->is_directory(error)) {
            create_folder(target);
        } else {
            copy_missing(file->path(), target);
        }
    }
    if (error) {
        throw run_time_error(failure::path_not_found, utf8_of_path(share));
    }
}

void load_settings(program& kavetta) {
    app_state& state = kavetta.app_state;
    read_settings_files(kavetta.folder, state);
    state.capacity_unit = 1;
    kavetta.labels.unittype = find_capacity_unit(state.capacity_unit)->list_text;
    state.project_has_file = false;
    state.update_server = configured_update_server(kavetta.folder);
    set_captions(kavetta);
}

void start_project(program& kavetta, user& person, std::string_view path) {
    app_state& state = kavetta.app_state;
    const bool recovered = offer_unsaved_entries(kavetta, person);
    const bool prompted = !recovered && path.empty();
    const start_answer answered = prompted ? person.ask_new_or_open() : start_answer();
    state.new_pressed = answered.choice == start_choice::new_project;
    state.open_pressed = answered.choice == start_choice::open_project;
    if (!recovered && !path.empty()) {
        open_project_file(kavetta, person, path);
    } else if (state.new_pressed) {
        new_project(kavetta, person);
    } else if (state.open_pressed) {
        open_project(kavetta, person);
    } else if (answered.choice == start_choice::example) {
        open_example(kavetta, person, answered.example);
    }
    set_captions(kavetta);
    if (!recovered) {
        note_new_entries(kavetta);
    }
}

}  // namespace kvt
