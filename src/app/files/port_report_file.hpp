// The file port_radius_coordinates.txt in the project folder, written after every finished outlet.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kvt {

struct program;

/// projects_folder; when it is empty the folder of the project's path, else the program's folder
/// with "projects".
std::filesystem::path port_report_folder(const program& kavetta);

/// The 24 lines for the ports as they stand, dated with program::date or, when that is empty, with
/// today's date.
std::vector<std::string> port_report(const program& kavetta);

/// Replaces the file. Without a program's folder (the batch program) nothing is written.
/// Throws path_not_found or path_file_access.
void write_port_report(const program& kavetta);

}  // namespace kvt
