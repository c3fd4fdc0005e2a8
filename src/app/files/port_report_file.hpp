// The file port_radius_coordinates.txt in the project folder, written after every finished outlet.
#pragma once

#include <string>
#include <vector>

namespace kvt {

class user;
struct program;

/// The 24 lines for the ports as they stand, dated with program::date or, when that is empty, with
/// today's date.
std::vector<std::string> port_report(const program& kavetta);

/// Replaces the file in the project's folder. Without a program's folder (the batch program)
/// nothing is written. When it can't be written, a line in the status bar and on standard error
/// says so.
void write_port_report(const program& kavetta, user& person);

}  // namespace kvt
