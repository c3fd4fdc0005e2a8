// exact_curves: the chamber's volume and the ideal flow as curves to be drawn. Sources:
// docs/formulas/exact_volume.md, "Chamber"; docs/formulas/exact_flow.md, "Ideal flow".
#pragma once

#include "core/design_params.hpp"

#include <vector>

namespace kvt {

/// Values at equal steps from 0 to `end`, both included; radians of the inner rotor.
struct even_curve {
    double end = 0.0;
    std::vector<double> values;
};

/// The volume of a chamber over its life, mm3, in steps of a degree or a little less, an even
/// number to each pitch; the largest is a point of the curve. Throws as outline_of_lobe.
even_curve volume_over_life(const design_params& design);

/// The ideal flow over its mean in 2 FLOW_HALF_STEPS steps of the period after which it repeats;
/// the kinks are points of the curve.
inline constexpr int FLOW_HALF_STEPS = 90;
even_curve flow_over_period(const design_params& design);

}  // namespace kvt
