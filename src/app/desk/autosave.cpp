#include "app/desk/autosave.hpp"

#include "app/desk/program_title.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/short_date.hpp"
#include "base/whole_file.hpp"
#include "core/failure_text.hpp"
#include "core/recent_list.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <chrono>
#include <string>
#include <unistd.h>

namespace kvt {

namespace {

namespace fs = std::filesystem;

/// Two stretches of work never have the same: time and process.
std::string new_session() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::to_string(now.count()) + "-" + std::to_string(::getpid());
}

std::string present_bytes(const program& kavetta) {
    const std::string& path = kavetta.app_state.project_path;
    return write_unsaved({project_record_of(kavetta, path), kavetta.unsaved->session});
}

/// Entries that a file can't hold are like no others.
std::string present_bytes_or_none(const program& kavetta) {
    try {
        return present_bytes(kavetta);
    } catch (const run_time_error&) {
        return {};
    }
}

void delete_autosave(unsaved_work& work) {
    if (work.autosave_file) {
        delete_file(std::move(*work.autosave_file));
        work.autosave_file.reset();
    }
    work.autosaved.clear();
}

void delete_all(std::vector<held_file>& files) {
    for (held_file& file : files) {
        delete_file(std::move(file));
    }
    files.clear();
}

/// A recovery project of this run that may be written anew: one that the user has opened, or one
/// that holds the same entries already.
held_file* own_recovery(unsaved_work& work, const std::string& bytes) {
    for (held_file& file : work.of_this_project) {
        const bool is_recovery = utf8_of_path(file.path.filename()).starts_with(RECOVERY_NAME);
        if (is_recovery && (file.was_opened || file.bytes == bytes)) {
            return &file;
        }
    }
    return nullptr;
}

/// The lock goes with the file when it could not be written.
fs::path write_recovery(const program& kavetta) {
    unsaved_work& work = *kavetta.unsaved;
    const std::string bytes = present_bytes(kavetta);
    if (held_file* own = own_recovery(work, bytes)) {
        write_file(own->path, bytes);
        own->bytes = bytes;
        return own->path;
    }
    std::optional<held_file> file = hold_new_file(kavetta.folder, RECOVERY_NAME);
    if (!file) {
        return {};
    }
    write_file(file->path, bytes);
    file->bytes = bytes;
    work.of_this_project.push_back(std::move(*file));
    return work.of_this_project.back().path;
}

/// "'pump', 11/03/21 14:32"
std::string question_about(const program& kavetta, const left_file& left) {
    const std::int16_t language = kavetta.app_state.language;
    const std::string& name = left.record->project.project_name;
    const std::string project = name.empty()
                                    ? std::string(message_text(message::unnamed_project, language))
                                    : "'" + name + "'";
    return std::string(message_text(message::unsaved_entries_found, language)) + project + ", " +
           short_date_and_time(left.written) +
           std::string(message_text(message::open_unsaved_entries, language));
}

void tell_unreadable(const program& kavetta, user& person, const left_file& left) {
    const std::int16_t language = kavetta.app_state.language;
    person.show_status(std::string(message_text(message::open_failed, language)) +
                       utf8_of_path(left.file.path) + ": " +
                       failure_text(*left.unreadable, language));
}

/// The program stands with the entries of the file, which stay unsaved.
void take_over(program& kavetta, user& person, left_file& left) {
    const project_record& project = left.record->project;
    app_state& state = kavetta.app_state;
    state.project_name = project.project_name;
    assign_unsaved_entries(kavetta, project);
    reset_results(kavetta, person);
    state.project_has_file = false;
    kavetta.labels.title = project_title(state.project_name);
    const std::string& path = project.project_path;
    if (!folder_of_path(path).empty()) {
        state.projects_folder = existing_folder_of(kavetta, path);
    }
    unsaved_work& work = *kavetta.unsaved;
    work.session = left.record->session.empty() ? new_session() : left.record->session;
    work.saved.clear();
    left.file.was_opened = true;
    if (utf8_of_path(left.file.path.filename()).starts_with(AUTOSAVE_NAME)) {
        work.autosaved = present_bytes_or_none(kavetta);
        work.autosave_file = std::move(left.file);
    } else {
        work.of_this_project.push_back(std::move(left.file));
    }
}

/// The older files of the same stretch of work go where the answer put the youngest.
void sort_in_older(std::vector<left_file>& files, std::size_t first, const std::string& session,
                   std::vector<held_file>& same) {
    for (std::size_t i = first; i < files.size() && !session.empty(); ++i) {
        left_file& older = files[i];
        if (older.record && older.record->session == session) {
            same.push_back(std::move(older.file));
            older.record.reset();
        }
    }
}

}  // namespace

void note_new_entries(program& kavetta) {
    unsaved_work& work = *kavetta.unsaved;
    work.of_this_project.clear();
    work.session = new_session();
    work.saved = present_bytes_or_none(kavetta);
}

void note_saved_entries(program& kavetta) {
    unsaved_work& work = *kavetta.unsaved;
    delete_autosave(work);
    delete_all(work.of_this_project);
    work.saved = present_bytes_or_none(kavetta);
}

bool has_unsaved_changes(const program& kavetta) {
    const std::string bytes = present_bytes_or_none(kavetta);
    return bytes.empty() || bytes != kavetta.unsaved->saved;
}

bool autosave(program& kavetta) {
    unsaved_work& work = *kavetta.unsaved;
    try {
        const std::string bytes = present_bytes(kavetta);
        if (bytes == work.saved) {
            delete_autosave(work);
            return false;
        }
        if (bytes == work.autosaved) {
            return false;
        }
        if (!work.autosave_file) {
            work.autosave_file = hold_new_file(kavetta.folder, AUTOSAVE_NAME);
        }
        if (!work.autosave_file) {
            return false;
        }
        write_file(work.autosave_file->path, bytes);
        work.autosaved = bytes;
        return true;
    } catch (const run_time_error&) {
        return false;
    }
}

fs::path save_recovery(const program& kavetta) {
    try {
        const fs::path recovery = write_recovery(kavetta);
        if (!recovery.empty()) {
            delete_autosave(*kavetta.unsaved);
        }
        return recovery;
    } catch (const run_time_error&) {
        return {};
    }
}

void forget_unsaved_entries(const program& kavetta) {
    unsaved_work& work = *kavetta.unsaved;
    delete_autosave(work);
    delete_all(work.of_this_project);
    delete_all(work.declined);
}

bool offer_unsaved_entries(program& kavetta, user& person) {
    unsaved_work& work = *kavetta.unsaved;
    std::vector<left_file> files = find_left_files(kavetta.folder);
    for (std::size_t i = 0; i < files.size(); ++i) {
        left_file& left = files[i];
        if (left.unreadable) {
            tell_unreadable(kavetta, person, left);
        }
        if (!left.record) {
            continue;
        }
        const std::string session = left.record->session;
        if (person.ask(question_about(kavetta, left), question_buttons::yes_no) == answer::yes) {
            take_over(kavetta, person, left);
            sort_in_older(files, i + 1, session, work.of_this_project);
            return true;
        }
        work.declined.push_back(std::move(left.file));
        sort_in_older(files, i + 1, session, work.declined);
    }
    return false;
}

}  // namespace kvt
