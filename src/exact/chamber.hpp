// chamber: one chamber of the pair without clearance over its life, from its least volume to its
// largest and back. Its place is the angle of the inner rotor in radians since the least volume,
// which stands on the line of centres at the inner rotor's side; a life lasts chamber_life.
// Source: docs/formulas/exact_volume.md, "Chamber".
#pragma once

#include "core/design_params.hpp"
#include "exact/exact_pair.hpp"
#include "exact/outer_outline.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// 2 pi N / (N - 1)
double chamber_life(const exact_pair& pair);

/// The angles of the two lobes that close the chamber, `first` clockwise of `second`.
struct chamber_lobes {
    double first = 0.0, second = 0.0;
};
chamber_lobes lobes_of_chamber(const exact_pair& pair, double place);

/// dV / d angle of the inner rotor, mm3 a radian: g of the second lobe less g of the first;
/// positive while the chamber grows.
double chamber_rate(const exact_pair& pair, double place);

/// The area between the two profiles, contact to contact, mm2, exact: arcs outside, the integral of
/// profile_sweep inside.
double chamber_area(const exact_pair& pair, const lobe_outline& outline, double place);
/// Times the thickness, mm3.
double chamber_volume(const exact_pair& pair, const lobe_outline& outline, double place);

/// Its outline as a polygon, counter-clockwise, no chord more than `sagitta` (mm) beside its arc or
/// flank.
std::vector<point2> chamber_polygon(const exact_pair& pair, const lobe_outline& outline,
                                    double place, double sagitta);

}  // namespace kvt
