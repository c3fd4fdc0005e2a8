// The four corners of a port: fillet centre and tangent points from the angle at which the fillet
// touches.
// Source: docs/formulas/ports.md, "Fillets".
#pragma once

#include "geometry/point2.hpp"

namespace kvt {

/// A filleted corner, mm. t_deg is the polar angle of c and r about the centre of the corner's arc,
/// degrees.
struct port_corner {
    double t_deg = 0.0;
    point2 c;  ///< fillet centre
    point2 s;  ///< tangent point on the side
    point2 r;  ///< tangent point on the arc
};

/// The corner on an arc of radius arc_r about (-shift, 0):
///     C = on_circle(centre_r, t)      S = (f cos theta + Cx, Cy - f sin theta)      R =
///     on_circle(arc_r, t)
/// centre_r is arc_r + f on the inner radius of a port, where the fillet lies outside the circle,
/// and arc_r - f on the outer radius.
port_corner corner_at(double t_deg, double arc_r, double centre_r, double f, double side_angle,
                      double shift);

/// Angle of a corner whose side lies on the x axis: atan(f / centre_r), degrees. Throws
/// division_by_zero when it is 0.
double axis_corner_angle(double f, double centre_r);

}  // namespace kvt
