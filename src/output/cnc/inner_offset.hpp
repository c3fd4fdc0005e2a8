// The path of a cutter's centre round the inner rotor, offset from the trochoid.
// Source: docs/formulas/written_files.md, "Inner offset".
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// Cutter centres 0 .. 3599 at D = clearn_half + radouter - tool_radius from the trochoid, mm about
/// the inner rotor axis, along the normal of the chord to the next point:
///     a = arctan(-1 / s)      b = a + PI_D      s slope of the chord
/// a or b by the quadrant of the index; an offset that leads away from the axis takes a.
/// Kept: that takes a also where a was the wrong one, so runs of points lie outside of the
/// trochoid; inner_offset_test holds it. Throws division_by_zero for a chord along an axis.
std::vector<point2> inner_offset_points(const design_params& design, const rotor_profiles& rotors,
                                        double tool_radius);

/// The same with every point on the axis' side of the trochoid: of a and b the one that leads
/// towards the axis.
std::vector<point2> checked_inner_offset_points(const design_params& design,
                                                const rotor_profiles& rotors, double tool_radius);

/// How many of inner_offset_points lie on the other side than those of checked_inner_offset_points.
int wrong_side_count(const design_params& design, const rotor_profiles& rotors, double tool_radius);

}  // namespace kvt
