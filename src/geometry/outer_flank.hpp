// The flank of an outer rotor lobe: where its fillet stands, and where fillet and lobe touch.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Radius of the lobe centres about the outer rotor centre, mm: C = radouter + lobe_centre_offset.
double lobe_centre_radius(const design_params& design, const rotor_profiles& rotors);

/// Angle between the lobe's axis and the fillet centre (without fillets: the root end of the
/// flank), seen from the outer centre, radians:
///     c = ((Rr - f)^2 + C^2 - (Ro + f)^2) / (((Rr - f) + (Rr - f)) C)      alpha = arc cosine of c
/// Rr outer_root, Ro radouter, f fillet. Source: docs/formulas/outer_rotor.md, "Fillet angle".
/// Throws invalid_procedure_call when the lobe doesn't reach the root circle, division_by_zero when
/// it just does.
double fillet_angle(const design_params& design, const rotor_profiles& rotors);
/// The same for lobe centres at this radius C.
double fillet_angle(const design_params& design, double centre_radius);

/// Whether the fillets of a lobe reach those of its neighbour: alpha * 2 N / PI_D > 2. Exactly 2
/// passes.
bool fillets_too_large(const design_params& design, double alpha);

/// Whether the fillet centres (without fillets: the root ends) lie beyond the lobe centres,
///     (Rr - f) cos alpha >= C
/// so that a lobe is half a turn or more. The tangent point of flank_of_lobe is not that of fillet
/// and lobe then. Throws as fillet_angle does.
bool fillets_stand_beyond_lobes(const design_params& design, double centre_radius);

/// The flank of a lobe at angle 0.
struct outer_flank {
    double alpha =
        0.0;  ///< angle of the root end and of the fillet centre from the lobe's axis, radians
    double beta = 0.0;            ///< angle of the tangent point of fillet and lobe, radians
    double tangent_radius = 0.0;  ///< T, distance of that point from the outer centre, mm
};

/// The flank with its tangent point; the drawing and the point generation share it.
///     gamma = arctan(Fy / (Fx - C))   T = sqrt(Ro^2 + C^2 - (C (Ro + Ro)) cos(-gamma))
///     w = (C^2 + T^2 - Ro^2) / ((C + C) T)   beta = arc cosine of w
/// F is the fillet centre at alpha. Source: docs/formulas/outer_rotor.md, "Tangent point".
outer_flank flank_of_lobe(const design_params& design, const rotor_profiles& rotors);
/// The same for lobe centres at this radius C.
outer_flank flank_of_lobe(const design_params& design, double centre_radius);

}  // namespace kvt
