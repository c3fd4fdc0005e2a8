// printed_status: what kvt answers when nobody takes what it prints.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace kvt {

/// At the end of a run: the exit status, which is 1 in place of 0 when standard output did not take
/// everything. That is told on `err`.
int status_after_printing(int status, std::ostream& out, std::ostream& err, std::int16_t language);

}  // namespace kvt
