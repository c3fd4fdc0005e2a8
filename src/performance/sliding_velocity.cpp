#include "performance/sliding_velocity.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

namespace {

double contact_distance(double n_ecc, double trochoid_r, double numlobes, double degrees) {
    return checked_sqrt(
        n_ecc * n_ecc + trochoid_r * trochoid_r -
        2.0 * n_ecc * trochoid_r *
            std::cos(checked_divide(degrees * PI_D * (numlobes - 1.0), numlobes * 180.0)));
}

}  // namespace

void calc_sliding_velocity(const design_params& design, const rotor_profiles& rotors,
                           perf_results& results) {
    const double numlobes = design.numlobes;
    results.n_ecc = numlobes * design.ecc;
    results.trochoid_ratio = checked_divide(rotors.trochoid_r, results.n_ecc);
    for (std::size_t a = 1; a <= ANGLE_ARRAY_LAST; ++a) {
        results.contact_dist[a] =
            contact_distance(results.n_ecc, rotors.trochoid_r, numlobes, static_cast<double>(a));
    }
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        results.sliding_max[i] = 0.0;
        results.sliding_mean[i] = 0.0;
        for (std::size_t a = 1; a <= ANGLE_ARRAY_LAST; ++a) {
            double& velocity = results.sliding_velocity[i][a];
            velocity = checked_divide(
                (results.contact_dist[a] - design.radouter) * results.speed_rpm[i] * PI_D,
                numlobes * 30.0);
            if (velocity > results.sliding_max[i]) {
                results.sliding_max[i] = velocity;
            }
            results.sliding_mean[i] = results.sliding_mean[i] + velocity;
        }
        results.sliding_mean[i] = checked_finite(results.sliding_mean[i] / 360.0);
    }
}

}  // namespace kvt
