// The commands of the File menu that deal with projects, and Clear Design.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

class user;
struct program;

/// New Project: name dialog (Cancel goes on with the name that stood before), Clear Design, project
/// reset.
void new_project(program& kavetta, user& person);

/// Open: dialog, then load. Any run-time failure ends the command with a line in the status bar and
/// no message, and everything stays as it was.
void open_project(program& kavetta, user& person);

/// Open from its fourth step on, without the dialog (a path given at the start, a dropped file).
/// The same handler.
void open_project_file(program& kavetta, user& person, std::string_view path);

/// Previous design: loads recent entry 0 .. 3, with the handler of Open.
void previous_design(program& kavetta, user& person, int index);

/// What Open and Previous design share: read the file, assign everything, set the title, reset the
/// project, update the recent list, switch the assist off. A name that line 2 can't hold is that of
/// the file. Throws run_time_error; what was assigned
/// before it stays.
void load_project(program& kavetta, user& person, std::string_view path);

/// The part of load_project that takes entries and items over and resets the results: the project
/// gets neither a path nor a file nor a title. Throws like load_project.
void load_entries(program& kavetta, user& person, const std::string& path);

/// The end of every load: the labels of the unit, the project reset, the assist switched off.
void reset_results(program& kavetta, user& person);

/// Asks for a project file to open, in a dialog with the program's title and this behind it that
/// starts in a folder. Nothing when none is chosen.
std::optional<std::string> choose_project(const program& kavetta, user& person,
                                          std::string_view title_end, const std::string& folder);

/// Save: to project_path when the project has a file, else Save As. Asks first when the file
/// could not be opened again (see find_unopenable_entry), and when it can only be overwritten where
/// it stands. When it can't be written a line in the status bar says why, and the project stays
/// open and unsaved.
void save_project(program& kavetta, user& person);

/// Save As, with the questions of Save. Any run-time failure ends the command with a line in the
/// status bar. True when the file was written.
bool save_project_as(program& kavetta, user& person);

/// Clear Design: boxes to their defaults; asks whether fluid and material values are kept.
void clear_design(program& kavetta, user& person);

}  // namespace kvt
