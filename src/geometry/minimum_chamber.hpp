// The smallest chamber: it lies on the positive x axis once the rotors are turned.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Sets min_chamber_inner_angle, min_chamber_outer_angle, min_chamber_area and min_chamber_volume.
/// The outer sum runs over the window of the chamber and finds its edge points and angles; the
/// inner sum runs between these angles and closes against the edge points. Source:
/// docs/formulas/chambers.md, "Minimum chamber".
void calculate_minimum_chamber(const design_params& design, rotor_profiles& rotors);

}  // namespace kvt
