// search_command: the designs of a project that no other one beats, as a table and as projects.
#pragma once

#include "app/stages/batch_run.hpp"
#include "kvt/study_output.hpp"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace kvt {

struct search_request {
    design_source source;
    /// As given.
    std::vector<std::string> varied, targets, limits, minimized, maximized, recorded;
    double step = 0.01;
    std::uint64_t budget = 1000;
    std::uint32_t seed = 0;
    calc_stage last = calc_stage::performance;
    study_out out;
    unsigned jobs = 0;  ///< 0: a thread a processor
};

/// What is wrong with options that stand together, or nothing.
std::string search_options_problem(const search_request& request);

/// Opens the project and searches. Answers the exit status: usage for a search that can't be,
/// refused when nothing was found, a file can't be written or the search was broken off; what it
/// had found by then is written.
int run_search_command(const search_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
