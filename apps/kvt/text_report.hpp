// text_report: a finished run as a short table for people.
#pragma once

#include "kvt/batch_run.hpp"

#include <string>

namespace kvt {

struct program;

/// One line a value: caption, at least two blanks, value with its unit, all values in one column.
/// Entries stand as typed; computed lengths are in the unit of the design, rounded to four
/// decimals. Computed values are given only for a run that ended ok, entries for every design that
/// could be read. The language is that of the program.
std::string text_report(const program& kavetta, const batch_result& result);

}  // namespace kvt
