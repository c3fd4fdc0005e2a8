// study_command: many designs of one project on all cores, as a table.
#pragma once

#include "app/stages/batch_run.hpp"
#include "app/study/study_words.hpp"
#include "kvt/study_output.hpp"

#include <iosfwd>
#include <string>

namespace kvt {

struct study_request : study_words {
    design_source source;
    study_out out;
    unsigned jobs = 0;  ///< 0: a thread a processor
    std::string shard = "1/1";
    bool resumes = false;
    bool lists_quantities = false;
};

/// What is wrong with the text of an option, or nothing.
std::string shard_problem(const std::string& text);
/// What is wrong with options that stand together, or nothing.
std::string study_options_problem(const study_request& request);

/// Opens the project and runs the study. Rows go to `out` or to the file, progress and what is
/// wrong to `err`. Answers the exit status: usage for a study that can't be, refused when a file
/// can't be written or the study was broken off. Designs that are refused are rows, and no refusal.
int run_study_command(const study_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
