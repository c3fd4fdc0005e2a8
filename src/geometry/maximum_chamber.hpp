// The largest chamber: it lies on the negative x axis.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Sets max_chamber_inner_angle, max_chamber_outer_angle, max_chamber_area and max_chamber_volume.
/// The chamber's area is the outer sum less the inner sum over the points whose y/x lies in the
/// window. For odd N nothing is turned: the chamber lies on the negative x axis as generated. Kept:
/// for even N both profiles are turned about the inner axis, by PI_D/(N-1) and PI_D/N. Source:
/// docs/formulas/chambers.md, "Maximum chamber".
void calculate_maximum_chamber(const design_params& design, rotor_profiles& rotors);

}  // namespace kvt
