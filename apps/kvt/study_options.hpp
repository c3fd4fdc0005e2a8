// The options of `kvt study` and `kvt search`, and the number of threads of whatever has many
// designs.
#pragma once

#include "kvt/search_command.hpp"
#include "kvt/study_command.hpp"

namespace CLI {
class App;
}

namespace kvt {

void add_jobs_option(CLI::App& command, unsigned& jobs);

/// What is varied, which designs are calculated, what stands in their table and where that goes.
void add_study_options(CLI::App& command, study_request& study);

/// What is varied, what the designs are to come to, and where the best of them go.
void add_search_options(CLI::App& command, search_request& search);

}  // namespace kvt
