#include "performance/hertz_contact.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "performance/side_load.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr std::size_t FIRST_LOBE = 1;
/// hertz_sliding always takes this speed.
constexpr std::size_t SLIDING_SPEED = 1;

/// 1 / troch_curv_r, 1/mm.
double trochoid_curvature(double arm_dist, double pressure_angle, const perf_results& results) {
    return checked_divide(1.0, arm_dist) - checked_divide(checked_divide(1.0, results.arm_base) -
                                                              checked_divide(1.0, results.n_ecc),
                                                          std::sin(pressure_angle));
}

}  // namespace

double combined_modulus(const perf_inputs& inputs) {
    return checked_divide(1.0, checked_divide(1.0 - inputs.poisson_inner * inputs.poisson_inner,
                                              inputs.young_inner_mpa) +
                                   checked_divide(1.0 - inputs.poisson_outer * inputs.poisson_outer,
                                                  inputs.young_outer_mpa));
}

void set_contact_geometry(double radouter, std::size_t a, perf_results& results) {
    const double arm_dist = results.lobe_arm_dist[FIRST_LOBE][a];
    const double dist = results.lobe_dist[FIRST_LOBE][a];
    const double c =
        checked_divide(arm_dist * arm_dist + dist * dist - results.arm_base * results.arm_base,
                       2.0 * dist * arm_dist);
    if (c == 1.0) {
        results.pressure_angle[a] = PI_D;
        results.troch_curv_r[a] = arm_dist;
    } else {
        results.pressure_angle[a] = (PI_D / 2.0 - results.lobe_angle[FIRST_LOBE][a]) -
                                    arc_cosine_form(c, 2.0 * std::atan(1.0));
        results.troch_curv_r[a] =
            checked_divide(1.0, trochoid_curvature(arm_dist, results.pressure_angle[a], results));
    }
    results.inner_curv_r[a] = arm_dist - results.troch_curv_r[a] - radouter;
    results.equiv_r[a] = checked_divide(
        1.0, checked_divide(1.0, results.inner_curv_r[a]) + checked_divide(1.0, radouter));
}

void set_contact_stress(double thick, std::size_t a, perf_results& results) {
    const double equiv_r = results.equiv_r[a];
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            double& stress = results.hertz_stress[i][j][a];
            if (equiv_r >= 0.0) {
                // Kept: the divisor is a full turn, and the load sharing is the model's own; so the
                // stress reads lower than a textbook line contact; how_sure_contact_test holds it.
                stress = checked_sqrt(
                    checked_divide(results.combined_modulus * results.contact_force[i][j][a],
                                   thick * TWO_PI_P * equiv_r));
                results.hertz_sliding[i][j][a] =
                    checked_divide(stress * results.sliding_velocity[SLIDING_SPEED][a] * 30.0,
                                   results.speed_rpm[SLIDING_SPEED] * PI_D);
            }
            if (stress > results.hertz_max) {
                results.hertz_max = stress;
            }
        }
    }
}

double tightest_concave_radius(const perf_results& results) {
    double tightest = results.inner_curv_r[1];
    for (std::size_t a = 2; a <= CONTACT_ANGLE_LAST; ++a) {
        const double radius = results.inner_curv_r[a];
        if (radius < 0.0 && radius > tightest) {
            tightest = radius;
        }
    }
    return tightest;
}

void calc_hertz_and_side_load(const design_params& design, const perf_inputs& inputs,
                              perf_results& results) {
    results.combined_modulus = combined_modulus(inputs);
    results.hertz_max = 0.0;
    for (std::size_t a = 1; a <= CONTACT_ANGLE_LAST; ++a) {
        set_contact_geometry(design.radouter, a, results);
        set_contact_stress(design.thick, a, results);
    }
    results.cutter_r = tightest_concave_radius(results);
    set_side_loads(design, inputs, results);
    results.cutter_r = floor_to_int(results.cutter_r * 100.0) / 100.0;
}

}  // namespace kvt
