// design_trial: what the program would say of a design, tried on a copy of it. The copy touches no
// file, asks nobody and shares nothing with the original that either of them changes, so that a
// trial can run in another thread.
#pragma once

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "app/stages/typed_entry.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kvt {

struct design_trial {
    program tried;  ///< the copy after the run, for reading
    batch_result result;
    std::vector<std::string> messages;  ///< in the order in which they were told
    /// The run ended ok, neither a port nor the performance was refused, and every number that
    /// stood in a box stands there still. A root radius that the program corrects only informs.
    bool accepted = false;
};

/// The last stage whose results are on display, which a trial of the design should come to:
/// profiles also when there are none yet.
calc_stage last_calculated_stage(const program& kavetta);

/// A copy with the records and entries of a program, without its folder, its unsaved work and the
/// programs of others. Nothing is drawn of its ports, so that what stands there after a run comes
/// from it.
program trial_copy(const program& kavetta);

/// Types an entry, if there is one, into a copy of the program as the user would, and runs the
/// stages up to `last`.
design_trial try_design(const program& kavetta, const std::optional<typed_entry>& typed,
                        calc_stage last);

}  // namespace kvt
