// Exit: the question whether to save, Save As, the settings, the end.
#pragma once

namespace kvt {

class user;
struct program;

/// Answers true when the program ends. Yes runs Save As; when that is cancelled or fails, the
/// entries stay in the recovery project; else what forget_unsaved_entries names is deleted. Cancel
/// keeps the program running. Throws run_time_error when the settings can't be written.
bool exit_program(program& kavetta, user& person);

}  // namespace kvt
