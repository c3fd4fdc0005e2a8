// calc_command: calculate a design and report it, for people on standard output, for programs as
// JSON.
#pragma once

#include "app/stages/batch_run.hpp"

#include <iosfwd>
#include <string>

namespace kvt {

struct calc_request {
    design_source source;
    std::string json_file;  ///< path of the JSON file; "-" is standard output; empty for none
    bool full = false;      ///< arrays and view too
    bool exact = false;     ///< the exact figures too
    calc_stage last = calc_stage::performance;
    std::string date;  ///< of the port report; empty: today
};

/// Runs the design. The summary goes to `out`, or the JSON and nothing else when json_file is "-".
/// Messages go to `err`. Answers the exit status; a JSON file that can't be written is a refusal.
int calc_design(const calc_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
