// study_text: the rows of a study as a table for other programs: comma-separated values (RFC 4180,
// UTF-8, lines ended by CR LF, decimal point), or one JSON object a line.
#pragma once

#include "app/study/study.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

enum class study_format { csv, json_lines };

/// The first line of a table: design, the variables, end, ports, performance, the recorded
/// quantities, messages, hints; with units in brackets. Empty for JSON lines.
std::string head_line(const study& designs, study_format format);

/// One row with its line end. Numbers have as many digits as read back to the same double. A
/// refused design has empty cells, in JSON null.
std::string row_line(const study& designs, const study_row& row, study_format format);

/// The head and some rows.
std::string table_text(const study& designs, const std::vector<study_row>& rows,
                       study_format format);

/// The row of a line that row_line has written, with the line's end or without; only whether the
/// design met the conditions is not in it: it did. Throws study_problem for any other line.
study_row row_of_line(const study& designs, std::string_view line, study_format format);

}  // namespace kvt
