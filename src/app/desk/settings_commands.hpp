// The settings file in the program's folder, and the folder in which the file dialogs start.
#pragma once

#include <string>

namespace kvt {

struct program;

/// Writes KVT.ini whole. Throws run_time_error when it can't be written.
void save_settings(const program& kavetta);

/// The folder of a path when it exists, else the program's folder with "projects".
std::string existing_folder_of(const program& kavetta, const std::string& path);

/// Fills projects_folder when it is empty, from the first line of KVT.ini. Throws run_time_error
/// when KVT.ini can't be read.
void find_projects_folder(program& kavetta);

}  // namespace kvt
