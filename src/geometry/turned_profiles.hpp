// Both profiles turned to the position of a chamber.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// The points 0 .. P-1 of inner_x, inner_y, turned by rotation radians about the inner axis, mm:
///     (r cos a, r sin a)      r radius_of the point, a = polar_angle of the point + rotation
/// Source: docs/formulas/chambers.md, "Maximum chamber" and "Minimum chamber". Throws
/// division_by_zero for a point with x = 0.
std::vector<point2> turned_inner_profile(double rotation, const rotor_profiles& rotors);

/// The pairs 0, 2 .. outer_xy_last of outer_xy as points, turned about the inner axis likewise.
std::vector<point2> turned_outer_profile(double rotation, const rotor_profiles& rotors);

/// The same pairs turned about the outer centre at x = -ecc.
/// Kept: the first one comes without the shift by -ecc; chambers_test holds it.
std::vector<point2> turned_outer_profile_about_its_centre(double rotation,
                                                          const design_params& design,
                                                          const rotor_profiles& rotors);

}  // namespace kvt
