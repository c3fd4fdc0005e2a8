// standard_streams: what a program without a window prints to.
#pragma once

namespace kvt {

/// At the start of the process. A standard stream that was closed gets a stand-in, so that no file
/// of the run takes its number and with it what is printed; printing to it then fails. A reader
/// that goes away ends no process, printing fails. Bytes are printed as they are, in UTF-8.
void guard_standard_streams();

/// Somebody reads standard error while it is written, at a terminal.
bool is_error_a_terminal();

}  // namespace kvt
