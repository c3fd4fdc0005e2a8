// json_report: a finished run as JSON for other programs. Names are those of the controls and of
// the records' fields.
#pragma once

#include "app/stages/batch_run.hpp"

#include <string>
#include <vector>

namespace kvt {

struct program;

/// {"ended", "messages", "hints", "entries", "labels", "numbers", "design_params",
/// "rotor_profiles"}, UTF-8, ended by a line feed. The two records are absent when the run did not
/// get to them. full adds the arrays, each cut to its used length, "view", the lines and arcs
/// of the Design view in twips, and "charts", the result charts; exact adds the object "exact".
/// Doubles read back to the same value.
std::string json_report(const program& kavetta, const std::vector<std::string>& messages,
                        const batch_result& result, bool full, bool exact = false);

/// The same in one line, with "project", the path, before everything else.
std::string json_report_line(const std::string& project, const program& kavetta,
                             const std::vector<std::string>& messages, const batch_result& result,
                             bool full, bool exact);

}  // namespace kvt
