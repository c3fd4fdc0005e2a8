#include "app/desk/settings_commands.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/recent_list.hpp"
#include "core/settings_file.hpp"

#include <filesystem>
#include <optional>
#include <system_error>

namespace kvt {

namespace {

/// A missing file is no failure; nor is one that can't be read.
std::optional<std::string> text_of(const std::filesystem::path& file) {
    try {
        return read_file(file, LARGEST_TEXT);
    } catch (const run_time_error&) {
        return std::nullopt;
    }
}

/// preferences.ini; without it what an earlier version has left.
preferences kept_preferences(const std::filesystem::path& folder) {
    if (const std::optional<std::string> text = text_of(folder / PREFERENCES_FILE_NAME)) {
        return preferences(*text);
    }
    const std::optional<std::string> earlier = text_of(folder / EARLIER_PREFERENCES_FILE_NAME);
    return earlier ? preferences_of_earlier_file(*earlier) : preferences();
}

void remove_file(const std::filesystem::path& file) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

/// What stands there already, keys of a later version too, stays.
void save_preferences(const program& kavetta) {
    preferences kept = kept_preferences(kavetta.folder);
    write_own_settings(kavetta.app_state, kept);
    const std::filesystem::path file = kavetta.folder / PREFERENCES_FILE_NAME;
    const std::string text = kept.text();
    if (text.empty()) {
        remove_file(file);
    } else {
        write_file(file, text);
    }
    remove_file(kavetta.folder / EARLIER_PREFERENCES_FILE_NAME);
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
    read_own_settings(kept_preferences(folder), state);
}

void save_settings(const program& kavetta) {
    save_preferences(kavetta);
    write_file(kavetta.folder / SETTINGS_FILE_NAME, write_settings(kavetta.app_state));
}

void toggle_preview(program& kavetta, user&) {
    kavetta.app_state.preview_on = !kavetta.app_state.preview_on;
}

std::string existing_folder_of(const program& kavetta, const std::string& path) {
    const std::string folder = folder_of_path(path);
    std::error_code ignored;
    if (!folder.empty() && std::filesystem::is_directory(path_of_utf8(folder), ignored)) {
        return folder;
    }
    return utf8_of_path(kavetta.folder / "projects");
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
