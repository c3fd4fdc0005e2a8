// outer_outline: the outer rotor's profile as true arcs, in the frame of the outer rotor: its axis
// is the origin, lobe 0 stands at angle 0. Source: docs/formulas/exact_volume.md, "Outer profile".
#pragma once

#include "core/design_params.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// An arc from one angle about its centre to another, radians; it runs backwards where `to` is
/// smaller.
struct true_arc {
    point2 centre;
    double radius = 0.0, from = 0.0, to = 0.0;

    point2 at(double angle) const;
};

/// The measures of the outline, mm and radians.
struct lobe_outline {
    double lobe_distance = 0.0, lobe_radius = 0.0;  ///< R, r
    double root_radius = 0.0, fillet = 0.0;         ///< Rr, f
    double root_angle = 0.0;     ///< a: the root begins so far from the lobe's axis
    double tangent_angle = 0.0;  ///< t: the lobe ends so far from the direction to the axis, about
                                 ///< its own centre
};

/// Of the entries. The circles of the fillets touch root and lobe; f = 0 leaves the corner of both.
///     cos a = ((Rr - f)^2 + R^2 - (r + f)^2) / (2 (Rr - f) R)      of the fillet centre F
///     t = pi - direction from the lobe centre to F
/// Throws invalid_procedure_call when the lobe does not reach the root.
lobe_outline outline_of_lobe(const design_params& design);

/// The integral (x dy - y dx) / 2 along an arc: the area that the ray from a point to it sweeps.
double arc_sweep(const true_arc& arc, const point2& about);

/// From a place on lobe 0 to one on lobe 1, counter-clockwise about the axis: lobe, fillet, root,
/// fillet, lobe. The places are angles about the lobe centres, from the direction to the axis,
/// counter-clockwise.
std::vector<true_arc> arcs_between(const lobe_outline& outline, double pitch, double on_first,
                                   double on_second);

/// The distance of a point inside the outline to the nearest of its arcs, negative outside. Only
/// arcs count on which the foot of the distance lies.
double distance_to_outline(const lobe_outline& outline, double pitch, const point2& point);

}  // namespace kvt
