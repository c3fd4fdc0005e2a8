#include "performance/chamber_rate.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace kvt {

namespace {

constexpr double RADIANS_PER_STEP = PI_D / 1800.0;

/// Sines and cosines of the steps' angles, the same in every design.
struct step_angles {
    using list = std::array<double, RIPPLE_STEPS>;

    step_angles() {
        for (std::size_t s = 0; s < RIPPLE_STEPS; ++s) {
            theta[s] = static_cast<double>(s) * PI_D / 1800.0;
            sine[s] = std::sin(theta[s]);
            cosine[s] = std::cos(theta[s]);
            next_cosine[s] = std::cos(RADIANS_PER_STEP + theta[s]);
        }
    }

    list theta, sine, cosine;
    list next_cosine;  ///< of the angle a step further
};

const step_angles& steps() {
    static const step_angles angles;
    return angles;
}

double arm_length(double ratio, double cosine) {
    return checked_sqrt(ratio * ratio + 1.0 - 2.0 * ratio * cosine);
}

/// One pass over the revolution; rate_sum is the sum of the positive rates. ahead(s) is the cosine
/// of step s turned by delta.
template <typename cosine_ahead>
void fill_rates(double radouter, double delta, cosine_ahead ahead, perf_results& results) {
    const step_angles& at = steps();
    const double cos_delta = std::cos(delta);
    const double sin_delta = std::sin(delta);
    results.rate_sum = 0.0;
    for (std::size_t s = 0; s < RIPPLE_STEPS; ++s) {
        const double u1 = (cos_delta - 1.0) * at.cosine[s];
        const double u2 = sin_delta * at.sine[s];
        const double w1 = arm_length(results.ratio, ahead(s));
        const double w2 = arm_length(results.ratio, at.cosine[s]);
        const double rate = results.width_ecc * results.ecc_n * (u1 - u2) +
                            results.width_ecc * (radouter / 1000.0) * (w1 - w2);
        checked_at(results.chamber_rate, static_cast<std::int64_t>(s)) = checked_finite(rate);
        if (rate > 0.0) {
            results.rate_sum = results.rate_sum + rate;
        }
    }
}

}  // namespace

void set_chamber_rate(const design_params& design, const rotor_profiles& rotors,
                      perf_results& results) {
    results.ratio = checked_divide(design.radouter, rotors.trochoid_r);
    results.width_ecc =
        checked_divide((design.ecc / 1000.0) * (design.thick / 1000.0), results.ratio);
    results.ecc_n = (design.ecc / 1000.0) * design.numlobes;
    const step_angles& at = steps();
    fill_rates(
        design.radouter, RADIANS_PER_STEP, [&](std::size_t s) { return at.next_cosine[s]; },
        results);
    const double chamber_m3 = checked_divide(rotors.capacity_cc / 1000000.0, design.numlobes - 1.0);
    const double delta = checked_divide(chamber_m3, results.rate_sum) * PI_D / 1800.0;
    fill_rates(
        design.radouter, delta, [&](std::size_t s) { return std::cos(delta + at.theta[s]); },
        results);
}

}  // namespace kvt
