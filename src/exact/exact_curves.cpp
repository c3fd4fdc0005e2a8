#include "exact/exact_curves.hpp"

#include "exact/chamber.hpp"
#include "exact/ideal_flow.hpp"
#include "exact/swept_volume.hpp"

#include <cmath>
#include <functional>
#include <numbers>

namespace kvt {

namespace {

constexpr double PI = std::numbers::pi;

even_curve curve_of(double end, int steps, const std::function<double(double)>& value) {
    even_curve curve{end, {}};
    for (int i = 0; i <= steps; ++i) {
        curve.values.push_back(value(end * i / steps));
    }
    return curve;
}

}  // namespace

even_curve volume_over_life(const design_params& design) {
    const exact_pair pair = nominal_pair(design);
    const lobe_outline outline = outline_of_lobe(design);
    const double life = chamber_life(pair);
    // So many that the largest volume is a point of the curve, with an odd number of lobes too.
    const int steps_a_pitch = 2 * static_cast<int>(std::ceil(life / pair.lobes * 90.0 / PI));
    // The second half mirrors the first.
    return curve_of(life, pair.lobes * steps_a_pitch, [&](double place) {
        return chamber_volume(pair, outline, std::min(place, life - place));
    });
}

even_curve flow_over_period(const design_params& design) {
    const exact_pair pair = nominal_pair(design);
    const double mean = swept_volume(pair) / (2.0 * PI);
    return curve_of(flow_period(pair), 2 * FLOW_HALF_STEPS,
                    [&](double angle) { return ideal_flow(pair, angle) / mean; });
}

}  // namespace kvt
