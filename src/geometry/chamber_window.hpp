// The window of a chamber: the angles under which a chamber is seen from both rotor axes.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// The angles of the two contact points that bound a chamber, radians from the positive x axis.
struct chamber_window {
    double w1 = 0.0;  ///< seen from the inner axis
    double w2 = 0.0;  ///< seen from the outer centre
};

/// Half a lobe pitch of the outer rotor: t = (360/(N 2)) PI_D / 180, radians.
double half_pitch(const design_params& design);

/// The window whose lobe centres stand at this angle (t at minimum chamber, PI_D - t at maximum
/// chamber):
///     h = sqrt(R^2 + n1^2 - (2 n1 R) cos(angle))   g = (h^2 + n1^2 - R^2) / (2 h n1)   j = h -
///     radouter l = sqrt(j^2 + n2^2 - (2 j n2) g)            q = (l^2 + n2^2 - j^2) / (2 n2 l)   w1
///     = arc cosine of q m = sqrt(j^2 + n1^2 - (2 j n1) g)            p = (m^2 + n1^2 - j^2) / (2
///     n1 m)   w2 = arc cosine of p
/// R trochoid_r, n1 = N ecc, n2 = (N-1) ecc. Source: docs/formulas/chambers.md, "Window".
chamber_window window_of_chamber(const design_params& design, const rotor_profiles& rotors,
                                 double angle);

}  // namespace kvt
