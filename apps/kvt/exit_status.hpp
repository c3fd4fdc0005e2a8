// exit_status: what the batch program answers to the shell.
#pragma once

#include "app/stages/batch_run.hpp"

namespace kvt {

inline constexpr int EXIT_OK = 0;
inline constexpr int EXIT_REFUSED =
    1;  ///< the design was refused or failed, or a file could not be written
inline constexpr int EXIT_USAGE = 2;  ///< the command line was wrong; nothing was read
inline constexpr int EXIT_UNREADABLE =
    3;  ///< the project file could not be read, or there is no memory

int exit_status(batch_end end);
/// EXIT_REFUSED, too, for a run that ended ok with a refused port or performance entry.
int exit_status(const batch_result& result);

}  // namespace kvt
