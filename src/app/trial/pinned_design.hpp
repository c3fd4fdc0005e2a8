// pinned_design: a calculated design that stays on display beside the present one, in grey and
// dashed, until it is unpinned. It belongs to the run, no file keeps it.
#pragma once

#include "app/trial/kept_design.hpp"

#include <string>

namespace kvt {

class user;
struct program;

struct pinned_design {
    std::string name;  ///< of its project
    kept_design design;
};

/// "Pinned: engine_oil", in the language in force; empty without a pinned design.
std::string pinned_text(const program& kavetta);

/// The results of the pinned design; null without one that has any.
const perf_results* pinned_performance(const program& kavetta);

/// Whether there are rotors to be pinned.
bool can_pin_design(const program& kavetta);

/// Pin Design: what stands calculated takes the place of what was pinned before.
void pin_design(program& kavetta, user& person);

/// Pin Project File: a project that is chosen in a dialog is calculated apart from the present one,
/// up to the performance, and pinned. Ports that are refused leave the rotors alone. A file that
/// can't be read is told in the status bar, rotors that are refused in a box with their reason;
/// both leave pinned what was.
void pin_project_file(program& kavetta, user& person);

/// Unpin Design.
void unpin_design(program& kavetta, user& person);

}  // namespace kvt
