// The working copies of both profiles, turned to the position of a chamber.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

#include <cstdint>

namespace kvt {

/// Empties rot_inner_x, rot_inner_y and rot_outer_xy; radius_scratch gets the elements 0 .. the
/// larger of outer_xy_last and radius_last.
void clear_working_copies(rotor_profiles& rotors, std::int32_t radius_last);

/// Turns inner_x, inner_y by rotation radians about the inner axis into rot_inner_x, rot_inner_y 0
/// .. P-1. Throws division_by_zero for a point with x = 0.
void turn_inner_profile(double rotation, rotor_profiles& rotors);

/// Turns outer_xy about the inner axis into rot_outer_xy, pairs 0 .. outer_xy_last.
void turn_outer_profile(double rotation, rotor_profiles& rotors);

/// Turns outer_xy about the outer centre at x = -ecc into rot_outer_xy.
/// Kept: the first pair is stored without the shift by -ecc; chambers_test holds it.
void turn_outer_profile_about_its_centre(double rotation, const design_params& design,
                                         rotor_profiles& rotors);

}  // namespace kvt
