// textbook_contact: the contact pressure of lobes that push, each a line contact. Source:
// docs/formulas/exact_contact.md.
#pragma once

#include "exact/exact_pair.hpp"

#include <vector>

namespace kvt {

struct contact_materials {
    double young_inner = 0.0, young_outer = 0.0;      ///< MPa
    double poisson_inner = 0.0, poisson_outer = 0.0;  ///< 1
};

/// 1 / ((1 - nu_i^2) / E_i + (1 - nu_o^2) / E_o), MPa
double contact_modulus(const contact_materials& materials);

struct contact_maximum {
    double pressure = 0.0;  ///< MPa
    double at = 0.0;        ///< angle of the lobe about the outer axis, radians
    double force = 0.0;     ///< N, on that lobe
};

/// The side of the lobes that the inner rotor pushes, worked out once for all torques.
class pushed_side {
  public:
    explicit pushed_side(const exact_pair& pair);

    /// The largest pressure over a pitch for a modulus in MPa and a torque in Nmm on the inner
    /// rotor:
    ///     F = T a / sum of a^2
    ///     p0 = sqrt(F E (1/r + flank curvature) / (pi b))
    /// The sum is over the lobes below the line of centres, that the rotor pushes; a is the arm of
    /// the contact normal about the inner axis. A flank hollower than the lobe has
    /// no line contact and does not count; 0 without any.
    contact_maximum largest_pressure(double modulus, double torque) const;

  private:
    /// What the pressure at an angle takes from the geometry.
    struct place {
        double share;      ///< F / T, 1/mm
        double curvature;  ///< 1/r + flank curvature, 1/mm
    };

    place place_at(double angle) const;
    double squared_pressure(const place& at, double modulus, double torque) const;

    exact_pair pair_;
    std::vector<place> places_;  ///< at equal steps
};

}  // namespace kvt
