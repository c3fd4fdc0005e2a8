// hand_over: a project that the desktop opens goes to a Kavetta that is running already.
#pragma once

#include "base/file_lock.hpp"

#include <QString>

#include <filesystem>
#include <optional>
#include <string>

namespace kvt {

/// More programs than these are not asked.
inline constexpr int MOST_HANDOVER_SERVERS = 16;
/// How long running programs have to answer, altogether, milliseconds. A program that hangs or
/// calculates doesn't hold up a start for longer.
inline constexpr int HANDOVER_ANSWER_MS = 1500;

/// Where the programs of this user, of a program's folder and of this screen meet: the beginning of
/// their sockets' paths, in the user's own folder for such. Empty when the system has none.
QString handover_place(const std::filesystem::path& folder);

/// The socket of one of the programs, 1 .. MOST_HANDOVER_SERVERS.
QString handover_socket(const QString& place, int number);

/// Two starts at once ask one after the other: held from before hand_over until the program can be
/// reached itself. Waits as long as for answers; nothing after that, and the start goes on without.
std::optional<file_lock> wait_for_handover_turn(const QString& place);

/// Asks the running programs to open a project, one that shows it already before all others. True
/// when one does: then this start has nothing more to do.
bool hand_over(const QString& place, const std::string& project);

}  // namespace kvt
