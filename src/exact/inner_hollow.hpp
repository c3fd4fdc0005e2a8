// inner_hollow: the tightest hollow of the inner rotor, which the largest cutter still fills.
// Source: docs/formulas/exact_volume.md, "Hollow".
#pragma once

#include "exact/exact_pair.hpp"

namespace kvt {

/// Diameter of the largest cutter that follows the whole profile, mm: twice the radius of the
/// tightest hollow,
///     2 / -(least curvature of the flank)
/// of the pair of the inner rotor, so with its clearance. 0 for a profile without hollows, which
/// any cutter follows.
double largest_cutter(const exact_pair& pair_of_inner_rotor);

}  // namespace kvt
