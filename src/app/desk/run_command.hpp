// The top of every command of the desktop program: a run-time failure that no command handled saves
// the entries to a recovery project, tells the user, and ends the program.
#pragma once

#include <functional>

namespace kvt {

class user;
struct program;

/// Runs a command. True when the program ends: the command said so, or a run-time failure reached
/// the top.
bool run_command(program& kavetta, user& person, const std::function<bool()>& command);

}  // namespace kvt
