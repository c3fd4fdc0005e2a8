// print_project: the Print entry of the File menu, and the printed report for whoever has a printer
// of its own.
#pragma once

#include "base/short_date.hpp"
#include "output/report/printed_report.hpp"

namespace kvt {

class user;
struct program;

/// What the report of a project is printed from: the records as they stand, with the date and time
/// of the clock.
report_source report_of(const program& kavetta, const clock& time);

/// Asks for the printer and prints the report. A cancelled dialog prints nothing; a failure ends
/// the command without a word and leaves the page as far as it came.
void print_project(program& kavetta, user& person);

}  // namespace kvt
