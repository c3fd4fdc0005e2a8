// assist_command: find rotor dimensions for the required capacity, without a window.
#pragma once

#include "app/stages/batch_run.hpp"

#include <iosfwd>
#include <string>

namespace kvt {

struct assist_request {
    design_source source;
    bool json = false;  ///< JSON in place of the summary
    std::string
        write_file;  ///< where the project is saved with the dimensions found; empty for nowhere
};

/// Opens the project, types the entries, runs the Design assist and prints the entries it found.
/// The project is saved only when they were found. Messages go to `err`. Answers the exit status; a
/// project that can't be saved is a refusal.
int assist_design(const assist_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
