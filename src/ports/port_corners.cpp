#include "ports/port_corners.hpp"

#include "ports/polar.hpp"

#include <cmath>

namespace kvt {

port_corner corner_at(double t_deg, double arc_r, double centre_r, double f, double side_angle,
                      double shift) {
    const point2 c = on_circle(centre_r, t_deg, shift);
    const point2 s = {f * std::cos(side_angle) + c.x, c.y - f * std::sin(side_angle)};
    return {t_deg, c, s, on_circle(arc_r, t_deg, shift)};
}

double axis_corner_angle(double f, double centre_r) {
    return atan_deg(f, centre_r);
}

}  // namespace kvt
