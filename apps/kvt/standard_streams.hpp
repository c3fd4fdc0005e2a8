// standard_streams: what kvt does when nobody takes what it prints.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace kvt {

/// At the start of the process. A standard stream that was closed gets a stand-in, so that no file
/// of the run takes its number and with it what is printed; printing to it then fails. A reader
/// that goes away ends no process, printing fails.
void guard_standard_streams();

/// At the end of a run: the exit status, which is 1 in place of 0 when standard output did not take
/// everything. That is told on `err`.
int status_after_printing(int status, std::ostream& out, std::ostream& err, std::int16_t language);

}  // namespace kvt
