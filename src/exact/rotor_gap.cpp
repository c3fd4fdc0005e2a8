#include "exact/rotor_gap.hpp"

#include "exact/exact_pair.hpp"
#include "exact/outer_outline.hpp"
#include "exact/quadrature.hpp"

#include <cstddef>
#include <numbers>

namespace kvt {

namespace {

constexpr double PI = std::numbers::pi;
constexpr int HALF_TURN_DEGREES = 180;
constexpr int STEPS_ON_FLANK = 120;

/// Both profiles of a design.
class profile_gap {
  public:
    explicit profile_gap(const design_params& design)
        : pair_(pair_of_inner_rotor(design)), outline_(outline_of_lobe(design)) {}

    double at_lobe(double angle) const {
        // Half of the inner profile from contact to contact, to both sides.
        const double reach = (2.0 * PI - pair_.pitch()) / 2.0;
        return smallest_between([&](double flank) { return distance(angle, flank); }, angle - reach,
                                angle + reach, STEPS_ON_FLANK)
            .value;
    }

  private:
    /// Of the place of the inner profile that is touched at `flank`, while the lobe stands at
    /// `angle`.
    double distance(double angle, double flank) const {
        const point2 place = turned(inner_profile_point(pair_, flank), angle * pair_.inner_turn());
        return distance_to_outline(outline_, pair_.pitch(),
                                   turned({place.x + pair_.ecc, place.y}, -angle));
    }

    const exact_pair pair_;
    const lobe_outline outline_;
};

double radians(int degrees) {
    return degrees * PI / HALF_TURN_DEGREES;
}

}  // namespace

double gap_at_lobe(const design_params& design, double angle) {
    return profile_gap(design).at_lobe(angle);
}

gap_round_turn gaps_round_turn(const design_params& design) {
    const profile_gap profiles(design);
    gap_round_turn turn;
    turn.gap.resize(2 * HALF_TURN_DEGREES + 1);
    int least = 0;
    for (int degrees = 0; degrees <= HALF_TURN_DEGREES; ++degrees) {
        const auto index = static_cast<std::size_t>(degrees);
        const double gap = profiles.at_lobe(radians(degrees));
        turn.gap[index] = turn.gap[turn.gap.size() - 1 - index] = gap;
        if (gap < turn.gap[static_cast<std::size_t>(least)]) {
            least = degrees;
        }
    }
    constexpr int STEPS = 4;
    const extreme found = smallest_between([&](double angle) { return profiles.at_lobe(angle); },
                                           radians(least - 1), radians(least + 1), STEPS);
    turn.least = found.value;
    turn.least_at = found.at;
    return turn;
}

}  // namespace kvt
