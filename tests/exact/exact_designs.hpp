// Designs for the tests of the exact figures.
#pragma once

#include "core/design_params.hpp"
#include "geometry/outer_root.hpp"
#include "support/property_runs.hpp"

#include <cmath>
#include <stdexcept>

namespace kvt {

/// A pair by N, e, radius of the lobe centres, lobe radius, thickness; the root and its fillets
/// leave the lobes room.
inline design_params pair_design(int lobes, double ecc, double lobe_distance, double lobe_radius,
                                 double thick) {
    design_params design;
    design.numlobes = lobes;
    design.ecc = ecc;
    design.radouter = lobe_radius;
    design.radinnroot = lobe_distance - lobe_radius - ecc;
    design.thick = thick;
    design.outer_root = design.radinnroot + 3.0 * ecc + 0.05;
    design.fillet = 0.3 * ecc;
    design.clearn_half = 0.05;
    design.maxdiameter = 2.2 * (lobe_distance + ecc);
    design.shaftdiameter = design.radinnroot;
    design.coarseness = 1;
    return design;
}

/// Any proportions that an inner rotor without undercuts can have.
inline design_params random_pair(random_values& random) {
    for (int draw = 0; draw < 1000; ++draw) {
        const int lobes = random.whole(3, 15);
        const double ratio = random.real(1.15, 2.4);
        const double ecc = random.real(0.5, 4.0);
        const double lobe_distance = ratio * lobes * ecc;
        const double tightest = std::pow(3.0 / (lobes + 1.0), 1.5) / ratio *
                                std::sqrt((ratio * ratio - 1.0) * (lobes - 1.0)) * lobe_distance;
        const double half_pitch = lobe_distance * std::sin(3.14159265 / lobes);
        const double largest = std::fmin(0.95 * tightest, 0.85 * half_pitch);
        // The lobes must reach the root.
        const double smallest = 1.2 * ecc + 0.1;
        if (smallest < largest) {
            return pair_design(lobes, ecc, lobe_distance, random.real(smallest, largest),
                               random.real(3.0, 40.0));
        }
    }
    throw std::runtime_error("no pair in 1000 draws");
}

}  // namespace kvt
