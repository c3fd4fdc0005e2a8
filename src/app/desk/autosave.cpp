#include "app/desk/autosave.hpp"

#include "app/desk/program_title.hpp"
#include "app/desk/run_command.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "core/failure_text.hpp"
#include "core/project_file.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <string>
#include <system_error>

namespace kvt {

namespace {

namespace fs = std::filesystem;

std::string present_bytes(const program& kavetta) {
    return write_project(project_record_of(kavetta, kavetta.app_state.project_path));
}

fs::file_time_type written_at(const fs::path& file) {
    std::error_code error;
    const fs::file_time_type time = fs::last_write_time(file, error);
    return error ? fs::file_time_type::min() : time;
}

}  // namespace

void start_autosave(program& kavetta) {
    try {
        kavetta.autosaved = present_bytes(kavetta);
    } catch (const run_time_error&) {
        kavetta.autosaved.clear();  // entries that a file can't hold count as changed
    }
}

bool autosave(program& kavetta) {
    try {
        const std::string bytes = present_bytes(kavetta);
        if (bytes == kavetta.autosaved) {
            return false;
        }
        write_entries(kavetta, (kavetta.folder / AUTOSAVE_FILE_NAME).string());
        kavetta.autosaved = bytes;
        return true;
    } catch (const run_time_error&) {
        return false;
    }
}

void forget_unsaved_entries(const program& kavetta) {
    std::error_code ignored;
    fs::remove(kavetta.folder / AUTOSAVE_FILE_NAME, ignored);
    fs::remove(kavetta.folder / RECOVERY_FILE_NAME, ignored);
}

std::optional<fs::path> unsaved_entries(const program& kavetta) {
    std::optional<fs::path> youngest;
    for (const std::string_view name : {AUTOSAVE_FILE_NAME, RECOVERY_FILE_NAME}) {
        const fs::path file = kavetta.folder / name;
        std::error_code error;
        if (fs::is_regular_file(file, error) &&
            (!youngest || written_at(file) > written_at(*youngest))) {
            youngest = file;
        }
    }
    return youngest;
}

bool offer_unsaved_entries(program& kavetta, user& person) {
    const std::optional<fs::path> file = unsaved_entries(kavetta);
    const std::int16_t language = kavetta.app_state.language;
    if (!file || person.ask(message_text(message::open_unsaved_entries, language),
                            question_buttons::yes_no) != answer::yes) {
        return false;
    }
    try {
        load_entries(kavetta, person, file->string());
        kavetta.app_state.project_has_file = false;
        kavetta.labels.title = project_title(kavetta.app_state.project_name);
        return true;
    } catch (const run_time_error& error) {
        person.show_status(std::string(message_text(message::open_failed, language)) +
                           std::string(failure_text(error.kind(), language)));
        return false;
    }
}

}  // namespace kvt
