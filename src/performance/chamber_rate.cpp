#include "performance/chamber_rate.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr double RADIANS_PER_STEP = PI_D / 1800.0;

double arm_length(double ratio, double angle) {
    return checked_sqrt(ratio * ratio + 1.0 - 2.0 * ratio * std::cos(angle));
}

/// One pass over the revolution; rate_sum is the sum of the positive rates.
void fill_rates(double radouter, double delta, perf_results& results) {
    const double cos_delta = std::cos(delta);
    const double sin_delta = std::sin(delta);
    results.rate_sum = 0.0;
    for (int s = 0; s < RIPPLE_STEPS; ++s) {
        const double theta = s * PI_D / 1800.0;
        const double u1 = (cos_delta - 1.0) * std::cos(theta);
        const double u2 = sin_delta * std::sin(theta);
        const double w1 = arm_length(results.ratio, delta + theta);
        const double w2 = arm_length(results.ratio, theta);
        const double rate = results.width_ecc * results.ecc_n * (u1 - u2) +
                            results.width_ecc * (radouter / 1000.0) * (w1 - w2);
        checked_at(results.chamber_rate, s) = checked_finite(rate);
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
    fill_rates(design.radouter, RADIANS_PER_STEP, results);
    const double chamber_m3 = checked_divide(rotors.capacity_cc / 1000000.0, design.numlobes - 1.0);
    const double delta = checked_divide(chamber_m3, results.rate_sum) * PI_D / 1800.0;
    fill_rates(design.radouter, delta, results);
}

}  // namespace kvt
