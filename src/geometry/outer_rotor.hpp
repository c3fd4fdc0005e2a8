// The outer rotor profile: root, fillet and lobe arcs as a fixed number of points each.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Fills outer_xy (0 .. outer_xy_size), outer_x and outer_y (0 .. outer_xy_size/2) and, with
/// fillets, fillet_x, fillet_y, fillet_r 0 .. 100; sets outer_xy_size, outer_xy_last, outer_last.
/// Points per arc: root 50, fillet 100 (the first one 101), lobe 250, independent of coarseness.
/// The profile starts at the root end of the first flank of the lobe at angle TWO_PI_D/N; the last
/// point repeats it up to rounding. Without fillets the start point itself is not stored: the first
/// point is point 1 of the first lobe arc. outer_* are mm about the inner rotor axis, fillet_*
/// about the outer centre. Source: docs/formulas/outer_rotor.md, "Points". Throws division_by_zero,
/// invalid_procedure_call for a geometry that doesn't close, overflow when the last index doesn't
/// fit 16 bits (with fillets from N = 33 on).
void fill_outer_rotor(const design_params& design, rotor_profiles& rotors);

}  // namespace kvt
