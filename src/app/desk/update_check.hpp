// update_check: compares the program's version with the list of the update server and fetches the
// files of another one. Layout: docs/file-formats.md, "Update list".
#pragma once

#include <filesystem>
#include <string>

namespace kvt {

class internet_control;
class user;
struct program;

inline constexpr const char* UPDATE_SERVER_FILE = "update_server.txt";

/// The server that KAVETTA_UPDATE_SERVER names, else the first line of update_server.txt in the
/// program's folder, with "https://" ahead of a name without a scheme and no "/" at its end. Empty:
/// the update check is off.
std::string configured_update_server(const std::filesystem::path& folder);

/// Fetches the list into updates/KVT_updates.upd and, when its first line is another version than
/// the program's, every file that it names into the same folder; then asks whether to install them,
/// which changes nothing. Throws run_time_error, the files so far stay: no_connection without a
/// server; what open_url throws; bad_file_name for a name that is empty, "." or would leave the
/// folder; input_past_end when the line behind a name is missing; path_not_found, path_file_access.
/// Kept: a file or list that is longer than its new bytes keeps its end; update_check_test holds
/// it.
void check_for_updates(const program& kavetta, user& person, internet_control& internet);

/// mnuupdateschecknow: the check where a server is configured, else nothing.
void check_for_updates_now(const program& kavetta, user& person, internet_control& internet);

/// mnuupdatesauto: turns its check mark around and tells it.
void toggle_auto_updates(program& kavetta, user& person);

}  // namespace kvt
