#include "geometry/chamber_window.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

namespace {

/// The right angle as the chamber routines form it.
double right_angle() {
    return std::atan(1.0) + std::atan(1.0);
}

}  // namespace

double half_pitch(const design_params& design) {
    return checked_divide(360.0, design.numlobes * 2.0) * PI_D / 180.0;
}

chamber_window window_of_chamber(const design_params& design, const rotor_profiles& rotors,
                                 double angle) {
    const double R = rotors.trochoid_r;
    const double n1 = design.numlobes * design.ecc;
    const double n2 = (design.numlobes - 1.0) * design.ecc;
    const double h = checked_sqrt(R * R + n1 * n1 - (2.0 * n1 * R) * std::cos(angle));
    const double g = checked_divide(h * h + n1 * n1 - R * R, 2.0 * h * n1);
    const double j = h - design.radouter;
    const double l = checked_sqrt(j * j + n2 * n2 - (2.0 * j * n2) * g);
    const double q = checked_divide(l * l + n2 * n2 - j * j, 2.0 * n2 * l);
    const double m = checked_sqrt(j * j + n1 * n1 - (2.0 * j * n1) * g);
    const double p = checked_divide(m * m + n1 * n1 - j * j, 2.0 * n1 * m);
    return {arc_cosine_form(q, right_angle()), arc_cosine_form(p, right_angle())};
}

}  // namespace kvt
