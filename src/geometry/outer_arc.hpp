// The arcs of the outer rotor profile as start angle and sweep: fillet, root and lobe arc.
#pragma once

#include "geometry/point2.hpp"

namespace kvt {

/// An arc about a centre: from angle a0 over sweep, both radians.
///     fillet and root arc: angle of point j = j sweep / points + a0      sweep = a1 - a0
///     lobe arc:            angle of point j = a0 - j (sweep / points)    sweep = a0 - a1
struct arc_angles {
    double a0 = 0.0, sweep = 0.0;
};

/// Fillet or root arc of this radius between two points, given as differences from its centre.
/// The end angle is unwrapped against the start angle, so that the arc runs the short way without a
/// jump at the axis. A difference of exactly 0 in y keeps the plain arctangent. Throws
/// division_by_zero for a difference of 0 in x. Source: docs/formulas/outer_rotor.md, "Unwrapping".
arc_angles fillet_or_root_arc(const point2& start, const point2& end, double radius);

/// Lobe arc of this radius between two points, given as differences from the lobe centre.
arc_angles lobe_arc(const point2& start, const point2& end, double radius);

}  // namespace kvt
