#include "exact/swept_volume.hpp"

#include "exact/quadrature.hpp"

#include <numbers>

namespace kvt {

double swept_volume(const exact_pair& pair) {
    constexpr double PI = std::numbers::pi;
    constexpr int PANELS = 8;
    const auto g = [&](double angle) { return sweep_of_lobe(pair, angle); };
    const double half = pair.pitch() / 2.0;
    const double near = integral(g, 0.0, half, PANELS);
    const double far = integral(g, PI - half, PI, PANELS);
    return 2.0 * pair.lobes * (near - far);
}

chamber_extremes extremes_of_chamber(const exact_pair& pair, const lobe_outline& outline) {
    // The chamber is symmetric to the line of centres there, so its rate is 0.
    chamber_extremes found;
    found.largest_at = chamber_life(pair) / 2.0;
    found.least = chamber_volume(pair, outline, found.least_at);
    found.largest = chamber_volume(pair, outline, found.largest_at);
    found.dead = (pair.lobes - 1) * found.least;
    return found;
}

}  // namespace kvt
