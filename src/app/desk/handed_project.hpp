// handed_project: what a running program does with the project that a second start of it was given.
#pragma once

#include <string_view>

namespace kvt {

struct program;

/// The second start ends after shows and takes, and opens a window of its own after declines.
enum class handover_answer { shows, takes, declines };

/// shows: the project is open here already. takes: it can be opened in its place, nothing is lost
/// by that. declines: the entries have unsaved changes, or the program is busy (a command, a
/// question).
handover_answer answer_handover(const program& kavetta, std::string_view path, bool is_busy);

/// The same before the program has started: it shows what it was started with.
handover_answer answer_early_handover(std::string_view start_path, std::string_view path);

}  // namespace kvt
