// tried_design: what the stages would bring with the entries as they are being typed, found on a
// copy of the program, so that another thread can.
#pragma once

#include "app/stages/batch_run.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/kept_design.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kvt {

/// What a trial runs: the stages that have been calculated.
struct tried_stages {
    calc_stage last = calc_stage::profiles;
    /// Rotors are drawn. Without, entries that are still missing are no reason to say something.
    bool has_rotors = false;
    std::string entry_in_use;  ///< its leave handler runs first; empty for none
};

tried_stages stages_on_display(const program& kavetta, std::string entry_in_use);

struct tried_design {
    std::shared_ptr<const kept_design>
        design;                         ///< null while the entries of the rotors are refused
    bool ports_refused = false;         ///< the design has rotors alone
    std::vector<std::string> messages;  ///< what the boxes would have said
};

/// What a trial has brought: rotors alone where the ports are refused. A run-time failure refuses
/// its stage.
tried_design tried_design_of(design_trial trial);

/// Runs the stages on a copy that nobody else holds (trial_copy). An entry that its leave handler
/// or the clean-up of Calculate Profiles would replace counts as refused: it is just being typed.
tried_design try_typed_entries(program copy, const tried_stages& stages);

}  // namespace kvt
