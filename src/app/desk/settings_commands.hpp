// The settings file in the program's folder, and the folder in which the file dialogs start.
#pragma once

#include <filesystem>
#include <string>

namespace kvt {

class user;
struct app_state;
struct program;

/// Reads KVT.ini and preferences.ini, which may be missing; then Kavetta.ini of an earlier version
/// counts. Throws file_not_found without KVT.ini.
void read_settings_files(const std::filesystem::path& folder, app_state& state);

/// Writes KVT.ini whole, and preferences.ini with what it holds already; one that would be empty
/// goes, and so does Kavetta.ini. Throws run_time_error when a file can't be written.
void save_settings(const program& kavetta);

/// Preview: whether entries are tried while they are typed; kept with the settings.
void toggle_preview(program& kavetta, user& person);

/// The folder of the open project: projects_folder; when that is empty the folder of the project's
/// path, else the program's folder with "projects".
std::string project_folder(const program& kavetta);

/// The folder of a path when it exists, else the program's folder with "projects".
std::string existing_folder_of(const program& kavetta, const std::string& path);

/// Fills projects_folder when it is empty, from the first recent path of the settings; without
/// them it is the program's folder with "projects".
void find_projects_folder(program& kavetta);

}  // namespace kvt
