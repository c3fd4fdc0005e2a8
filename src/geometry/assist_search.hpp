// The search of the Design assist: root radius, eccentricity and lobe radius for a required
// capacity.
#pragma once

#include "base/fixed4.hpp"
#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Capacity of the present dimensions, cm3 per revolution, four decimals: the annulus between tip
/// and root of the inner rotor (annulus_volume). Throws overflow for a volume that doesn't fit.
fixed4 candidate_capacity(const design_params& design, const rotor_profiles& rotors);

/// Stage 1: the smallest root radius, in steps of 0.25 mm from shaftdiameter/2 + minmaterial, whose
/// capacity is above the required one, and with it
///     ecc = radinnroot/(N-2) - 0.01, four decimals      outer_root = a + ecc + b + ecc - radouter
/// a base_radius, b roll_radius; radouter is 0 here. An equal capacity is not enough. Returns the
/// capacity found. Throws division_by_zero for N = 2, overflow when the steps no longer change the
/// radius. Source: docs/formulas/design_assist.md, "Root radius and eccentricity".
fixed4 find_root_and_eccentricity(fixed4 required, design_params& design, rotor_profiles& rotors);

/// outer_root > maxdiameter/2 - minmaterial.
bool exceeds_assist_diameter(const design_params& design);

/// Stage 2: the lobe radius, in steps of 0.25 mm downwards from the whole number nearest to N ecc,
/// until the radius of the circle through the flank of a uniform trochoid is above its limit:
///     r_lobe > N radouter/(N-1) + ecc
/// troch_angle, troch_x, troch_y 0 .. 3599 hold that trochoid afterwards; its pen distance is ecc -
/// clearn_half, unlike that of the profile. Throws division_by_zero for a level or upright chord,
/// subscript_out_of_range when N is so large that a flank has no points. Source:
/// docs/formulas/design_assist.md, "Lobe radius".
void find_lobe_radius(design_params& design, rotor_profiles& rotors);

/// Stage 3: the root radius grows in steps of 0.25 mm until radouter is not above the smallest
/// radius of curvature of the trochoid; trochoid_r here is radouter + radinnroot + ecc, without the
/// clearance. ecc stays. Kept: no margin factor, so that Calculate Profiles can refuse the result;
/// outer_root and its entry stay those of stage 1. assist_search_test holds it. Returns the
/// capacity of the result. Source: docs/formulas/design_assist.md, "Curvature".
fixed4 grow_root_to_curvature(design_params& design, rotor_profiles& rotors);

}  // namespace kvt
