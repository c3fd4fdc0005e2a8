#include "app/desk/settings_commands.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/recent_list.hpp"
#include "core/settings_file.hpp"

#include <filesystem>
#include <system_error>

namespace kvt {

namespace {

/// A missing file is no failure; one that can't be read leaves the paths as KVT.ini has them.
std::string own_settings(const std::filesystem::path& folder) {
    try {
        return read_file(folder / OWN_SETTINGS_FILE_NAME, LARGEST_TEXT);
    } catch (const run_time_error&) {
        return {};
    }
}

/// Of the settings as they were saved last; empty when they are gone or can't be read.
std::string second_recent_path(const std::filesystem::path& folder) {
    try {
        app_state settings;
        read_settings_files(folder, settings);
        return settings.mnufileprev[1];
    } catch (const run_time_error&) {
        return {};
    }
}

}  // namespace

void read_settings_files(const std::filesystem::path& folder, app_state& state) {
    read_settings(read_file(folder / SETTINGS_FILE_NAME, LARGEST_TEXT), state);
    read_own_settings(own_settings(folder), state);
}

void save_settings(const program& kavetta) {
    const std::filesystem::path own = kavetta.folder / OWN_SETTINGS_FILE_NAME;
    const std::string whole_paths = write_own_settings(kavetta.app_state);
    if (whole_paths.empty()) {
        std::error_code ignored;
        std::filesystem::remove(own, ignored);
    } else {
        write_file(own, whole_paths);
    }
    write_file(kavetta.folder / SETTINGS_FILE_NAME, write_settings(kavetta.app_state));
}

std::string existing_folder_of(const program& kavetta, const std::string& path) {
    const std::string folder = folder_of_path(path);
    std::error_code ignored;
    if (!folder.empty() && std::filesystem::is_directory(path_of_utf8(folder), ignored)) {
        return folder;
    }
    return (kavetta.folder / "projects").string();
}

std::string project_folder(const program& kavetta) {
    const app_state& state = kavetta.app_state;
    return state.projects_folder.empty() ? existing_folder_of(kavetta, state.project_path)
                                         : state.projects_folder;
}

void find_projects_folder(program& kavetta) {
    std::string& folder = kavetta.app_state.projects_folder;
    if (folder.empty()) {
        folder = existing_folder_of(kavetta, second_recent_path(kavetta.folder));
    }
}

}  // namespace kvt
