// limits_command: how far the entries of a design can go, for people on standard output, for
// programs as JSON.
#pragma once

#include "app/stages/batch_run.hpp"

#include <iosfwd>
#include <string>
#include <vector>

namespace kvt {

struct limits_request {
    design_source source;
    std::vector<std::string> entries;  ///< their names; none: those of every box that is read
    calc_stage last = calc_stage::performance;
    bool json = false;  ///< JSON in place of the lines
};

/// What is wrong with the name of an entry, or nothing: it is that of a box.
std::string limited_entry_problem(const std::string& name);

/// Opens the project, types the entries and prints the limits of each. The design is calculated as
/// far as it is accepted, up to the last stage, and at least to the stage that reads the entry.
/// Messages go to `err`. Answers the exit status: refused when no
/// number of an entry that is named is accepted.
int print_limits(const limits_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
