#include "exact/inner_hollow.hpp"

#include "exact/quadrature.hpp"

#include <numbers>

namespace kvt {

double largest_cutter(const exact_pair& pair_of_inner_rotor) {
    constexpr int STEPS = 360;
    // A lobe meets half a tooth on half a turn; the other half mirrors it.
    const extreme hollow =
        smallest_between([&](double angle) { return flank_curvature(pair_of_inner_rotor, angle); },
                         0.0, std::numbers::pi, STEPS);
    return hollow.value < 0.0 ? -2.0 / hollow.value : 0.0;
}

}  // namespace kvt
