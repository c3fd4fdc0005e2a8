// design_hints: what the stages notice about a design that they accepted, and which entry to
// change.
#pragma once

#include "core/hints.hpp"

namespace kvt {

struct program;

/// After Calculate Profiles: fillet centres beyond the lobe centres, arcs of the outer rotor that
/// miss each other by more than 0.001 mm, profiles that cross themselves. Changes nothing but the
/// hints.
void note_profile_faults(program& kavetta);

/// After Design Ports, and with a file of the groove: a finished metering groove on the wrong side
/// of the pump, or one that crosses itself.
void note_groove_faults(program& kavetta, hint_weight weight = hint_weight::line);

}  // namespace kvt
