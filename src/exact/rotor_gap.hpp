// rotor_gap: how near the two real profiles, with their clearance and fillets, come to each other
// round the turn. Source: docs/formulas/exact_gap.md.
#pragma once

#include "core/design_params.hpp"

#include <vector>

namespace kvt {

/// The least distance of the inner rotor to the part of the outer rotor around one lobe, half a
/// pitch to both sides, when that lobe stands at an angle about the outer axis (radians, 0 on the
/// line of centres at the inner rotor's side), mm. Negative: they overlap by so much there.
double gap_at_lobe(const design_params& design, double angle);

struct gap_round_turn {
    std::vector<double> gap;  ///< at 0, 1 .. 360 degrees of the lobe, mm
    double least = 0.0;       ///< of all, mm
    double least_at = 0.0;    ///< where that lobe stands, radians
};

/// gap_at_lobe in steps of a degree, its least value found between them. The second half mirrors
/// the first. Throws run_time_error for an outer rotor whose lobes do not reach the root.
gap_round_turn gaps_round_turn(const design_params& design);

}  // namespace kvt
