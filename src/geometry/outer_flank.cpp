#include "geometry/outer_flank.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

double lobe_centre_radius(const design_params& design, const rotor_profiles& rotors) {
    return design.radouter + rotors.lobe_centre_offset;
}

double fillet_angle(const design_params& design, const rotor_profiles& rotors) {
    return fillet_angle(design, lobe_centre_radius(design, rotors));
}

double fillet_angle(const design_params& design, double centre_radius) {
    const double C = centre_radius;
    const double to_fillet = design.outer_root - design.fillet;
    const double reach = design.radouter + design.fillet;
    const double c =
        checked_divide(to_fillet * to_fillet + C * C - reach * reach, (to_fillet + to_fillet) * C);
    return arc_cosine_form(c, PI_H);
}

bool fillets_too_large(const design_params& design, double alpha) {
    return alpha * 2.0 * design.numlobes / PI_D > 2.0;
}

bool fillets_stand_beyond_lobes(const design_params& design, double centre_radius) {
    const double alpha = fillet_angle(design, centre_radius);
    return (design.outer_root - design.fillet) * std::cos(alpha) >= centre_radius;
}

outer_flank flank_of_lobe(const design_params& design, const rotor_profiles& rotors) {
    return flank_of_lobe(design, lobe_centre_radius(design, rotors));
}

outer_flank flank_of_lobe(const design_params& design, double centre_radius) {
    outer_flank flank;
    flank.alpha = fillet_angle(design, centre_radius);
    const double C = centre_radius;
    const double Ro = design.radouter;
    const double Fx = (design.outer_root - design.fillet) * std::cos(flank.alpha);
    const double Fy = (design.outer_root - design.fillet) * std::sin(flank.alpha);
    const double gamma = std::atan(checked_divide(Fy, Fx - C));
    const double delta = -gamma;
    const double T = checked_sqrt(Ro * Ro + C * C - (C * (Ro + Ro)) * std::cos(delta));
    const double w = checked_divide(C * C + T * T - Ro * Ro, (C + C) * T);
    flank.tangent_radius = T;
    flank.beta = arc_cosine_form(w, PI_H);
    return flank;
}

}  // namespace kvt
