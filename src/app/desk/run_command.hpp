// The top of every command of the desktop program: a run-time failure that no command handled saves
// the entries to a recovery project, tells the user, and ends the program.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace kvt {

class user;
struct program;

/// The recovery project in the program's folder.
inline constexpr std::string_view RECOVERY_FILE_NAME = "recovery.KVT";

/// Runs a command. True when the program ends: the command said so, or a run-time failure reached
/// the top.
bool run_command(program& kavetta, user& person, const std::function<bool()>& command);

/// Writes the entries to the recovery project and returns its path; empty when even that fails.
std::filesystem::path save_recovery(const program& kavetta);

}  // namespace kvt
