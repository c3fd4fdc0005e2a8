// The top of every command of the desktop program: a run-time failure that no command handled saves
// the entries to a recovery project, tells the user, and ends the program or takes the command
// back.
#pragma once

#include <functional>

namespace kvt {

class user;
struct program;

/// Runs a command. True when the program ends: the command said so, or a run-time failure reached
/// the top and the user ends it. When the user goes on after one, all records and entries are as
/// they were before the command; the hints that led there stay.
bool run_command(program& kavetta, user& person, const std::function<bool()>& command);

/// The same for a step of the Design view, many a second, which changes nothing but what is seen:
/// view_state, design_view and rotated_angle. Only these are kept and taken back.
bool run_view_step(program& kavetta, user& person, const std::function<void()>& step);

}  // namespace kvt
