// The largest and the smallest chamber: their windows and their volumes.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Sets max_chamber_inner_angle, max_chamber_outer_angle, max_chamber_area and max_chamber_volume.
/// The chamber lies on the negative x axis; its area is the outer sum less the inner sum over the
/// points whose y/x lies in the window. For odd N nothing is turned: it lies there as generated.
/// Kept: for even N both profiles are turned about the inner axis, by PI_D/(N-1) and PI_D/N;
/// chambers_test holds it. Source: docs/formulas/chambers.md, "Maximum chamber". Throws
/// division_by_zero, invalid_procedure_call for points without a triangle; the older area and
/// volume stay then.
void calculate_maximum_chamber(const design_params& design, rotor_profiles& rotors);

/// Sets min_chamber_inner_angle, min_chamber_outer_angle, min_chamber_area and min_chamber_volume.
/// The chamber lies on the positive x axis once the rotors are turned. The outer sum runs over its
/// window and finds its edge points and angles; the inner sum runs between these angles and closes
/// against the edge points. Source: docs/formulas/chambers.md, "Minimum chamber". Throws likewise.
void calculate_minimum_chamber(const design_params& design, rotor_profiles& rotors);

}  // namespace kvt
