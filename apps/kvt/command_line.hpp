// command_line: the options of kvt and what they start.
#pragma once

#include "kvt/command_description.hpp"

#include <iosfwd>

namespace kvt {

/// Reads the command line and runs its command. Answers the exit status: 0 ended ok, 1 refused or
/// failed, or `out` did not take everything, 2 usage, 3 the project file could not be read, or
/// there is no memory.
int run_command_line(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

/// The same options as data, for the manual page and the completion of shells.
program_description described_program();

}  // namespace kvt
