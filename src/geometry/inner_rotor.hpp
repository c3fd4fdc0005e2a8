// The inner rotor profile: the inner offset of the trochoid, its plotted points, and the lobe fit.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Offsets the trochoid by radouter + clearn_half along its normals. Fills troch_slope, inner_x,
/// inner_y 0 .. P-1, inner_plot_xy with every coarseness-th point, element P of troch_x and
/// troch_y; troch_angle becomes i PI_D/(P/2). All mm about the inner rotor axis. Source:
/// docs/formulas/inner_rotor.md, "Offset". Throws division_by_zero where the slope is 0, which is
/// also the slope of a vertical tangent; subscript_out_of_range when inner_plot_xy is too short.
void fill_inner_rotor(const design_params& design, rotor_profiles& rotors);

/// Radius of the circle through the two normals at 60 and 140 percent of the first half lobe, mm: a
/// measured radius of curvature of the lobe. The lobes of the outer rotor fit when it is not below
/// radouter. Source: docs/formulas/inner_rotor.md, "Lobe fit". Throws division_by_zero for a slope
/// of 0 or parallel normals.
double measured_lobe_radius(const design_params& design, const rotor_profiles& rotors);

}  // namespace kvt
