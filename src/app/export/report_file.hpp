// report_file: the printed report of a project without a printer, as lines, as a text file or as
// PDF.
#pragma once

#include <string>
#include <vector>

namespace kvt {

struct program;

/// What is wrong with the name of the report's file, or nothing: it ends in .txt or .pdf.
std::string report_file_problem(const std::string& file);

/// The lines of the report of the records as they stand, UTF-8. The date is one that
/// date_time_problem accepts; empty: now.
std::vector<std::string> report_text(const program& kavetta, const std::string& date);

/// The report as a file: text in the code page with CR LF, or PDF, by the ending. Throws
/// run_time_error when it can't be written.
void write_report_file(const program& kavetta, const std::string& file, const std::string& date);

}  // namespace kvt
