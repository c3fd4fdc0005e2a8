// swept_volume: what the pair without clearance moves in a revolution, and the life of its
// chambers. Source: docs/formulas/exact_volume.md, "Swept volume".
#pragma once

#include "exact/chamber.hpp"
#include "exact/exact_pair.hpp"
#include "exact/outer_outline.hpp"

namespace kvt {

/// Displacement of the inner rotor's revolution, mm3:
///     V = (N - 1) (largest - least chamber volume) = 2 N (integral of g over the pitch about the
///     lobe nearest to the outer rotor's side - the same on the other side)
/// g is sweep_of_lobe; both integrals over half a pitch, since g is even.
double swept_volume(const exact_pair& pair);

/// Volumes in mm3; places in radians of the inner rotor since the least volume.
struct chamber_extremes {
    double least = 0.0, largest = 0.0;
    double least_at = 0.0, largest_at = 0.0;
    double dead =
        0.0;  ///< what the pump never delivers, all chambers of a revolution: (N - 1) least
};
chamber_extremes extremes_of_chamber(const exact_pair& pair, const lobe_outline& outline);

}  // namespace kvt
