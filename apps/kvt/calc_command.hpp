// calc_command: calculate a design and report it, for people on standard output, for programs as
// JSON.
#pragma once

#include "app/stages/batch_run.hpp"

#include <iosfwd>
#include <string>
#include <vector>

namespace kvt {

struct calc_request {
    design_source source;               ///< its project is one of these
    std::vector<std::string> projects;  ///< paths
    bool json_lines = false;            ///< a line of JSON a project
    unsigned jobs = 0;                  ///< of many projects; 0: a thread a processor
    std::string json_file;  ///< path of the JSON file; "-" is standard output; empty for none
    bool full = false;      ///< arrays and view too
    bool exact = false;     ///< the exact figures too
    calc_stage last = calc_stage::performance;
    std::string date;  ///< of the port report; empty: today
};

/// What is wrong with options that stand together, or nothing.
std::string calc_options_problem(const calc_request& request);

/// Runs the design. The summary goes to `out`, or the JSON and nothing else when json_file is "-".
/// Messages go to `err`. Answers the exit status; a JSON file that can't be written is a refusal.
int calc_design(const calc_request& request, std::ostream& out, std::ostream& err);

/// Runs the designs of all projects on all processors. To `out` goes a line a project, in their
/// order: the JSON with "project", its path, before it. Messages are in these lines alone. Answers
/// the worst exit status of all.
int calc_projects(const calc_request& request, std::ostream& out);

}  // namespace kvt
