// The contours that the models of a design must have.
#pragma once

#include "core/design_params.hpp"
#include "geometry/circle_arc.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// The arcs of the outer rotor with fillets that touch lobe and root, also where the lobes are more
/// than half a turn and the files' own arcs miss each other. With the pitch and the
/// fillet angle of the files, whose pi is rounded.
std::vector<circle_arc> bore_arcs(const design_params& design);

/// What the same arcs enclose with the true pitch and fillet angle, mm^2. The lobes' run clockwise
/// along the bore, the others counter-clockwise:
///     1/2 (r^2 s + r (cx (sin e - sin b) - cy (cos e - cos b)))    for each arc
/// (cx, cy) centre, r radius, s sweep from b to e.
double bore_area(const design_params& design);

/// The points of the outer rotor's file, about the inner rotor axis.
std::vector<point2> bore_chords(const design_params& design);

}  // namespace kvt
