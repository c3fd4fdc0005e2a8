// What happens when the user leaves an entry: the lobe number, the maximum diameter and the drawing
// resolution are checked at once.
#pragma once

#include <string_view>

namespace kvt {

class user;
struct program;

/// Runs the handler of an entry that the user leaves; entries without a handler do nothing.
/// Throws run_time_error when numlobes is no number.
void leave_entry(program& kavetta, user& person, std::string_view control);

}  // namespace kvt
