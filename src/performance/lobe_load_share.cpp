#include "performance/lobe_load_share.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>
#include <cstdint>

namespace kvt {

namespace {

/// Force grows with this power of the arm, so the torque of a lobe with the next one.
constexpr double FORCE_EXPONENT = 1.11;
constexpr double TORQUE_EXPONENT = 2.11;

/// c away from the ends of the arc cosine, where its form divides by 0.
double off_the_ends(double c) {
    if (0.999999 < c && c < 1.000001) {
        return 0.9999;
    }
    if (-1.000001 < c && c < -0.999999) {
        return -0.9999;
    }
    return c;
}

/// The third side of a triangle with sides u and v and the cosine of the angle between them.
double third_side(double u, double v, double cosine) {
    return checked_sqrt(u * u + v * v - 2.0 * u * v * cosine);
}

void set_lobe(const design_params& design, double trochoid_r, std::int32_t k, std::size_t a,
              perf_results& results) {
    const double ecc = design.ecc;
    const double phase = 360.0 * (k - 1.0) / design.numlobes;
    double& dist = checked_at(results.lobe_dist, k)[a];
    double& angle = checked_at(results.lobe_angle, k)[a];
    double& arm_dist = checked_at(results.lobe_arm_dist, k)[a];
    double& arm = checked_at(results.lobe_arm, k)[a];

    dist = third_side(trochoid_r, ecc, std::cos((static_cast<double>(a) + phase) * PI_D / 180.0));
    const double c = off_the_ends(
        checked_divide(ecc * ecc + dist * dist - trochoid_r * trochoid_r, 2.0 * dist * ecc));
    angle = PI_D - arc_cosine_form(c, 2.0 * std::atan(1.0));
    arm_dist = third_side(results.arm_base, dist, std::cos(angle));
    arm = checked_divide(results.arm_base * dist * std::sin(angle), arm_dist);
    // Kept: angle never exceeds PI_D by its own formula, so every lobe carries load;
    // lobe_load_share_test holds it.
    if (angle > PI_D) {
        arm = 0.0;
    }
}

/// The sum of arm^2.11 over all lobes at a.
double torque_shares(std::int32_t numlobes, std::size_t a, const perf_results& results) {
    double sum = 0.0;
    for (std::int32_t k = 1; k <= numlobes; ++k) {
        sum = sum + checked_pow(checked_at(results.lobe_arm, k)[a], TORQUE_EXPONENT);
    }
    return sum;
}

}  // namespace

void calc_lobe_load_share(const design_params& design, const rotor_profiles& rotors,
                          perf_results& results) {
    results.arm_base = (design.numlobes - 1.0) * design.ecc;
    for (std::int32_t k = 1; k <= design.numlobes; ++k) {
        for (std::size_t a = 1; a <= CONTACT_ANGLE_LAST; ++a) {
            set_lobe(design, rotors.trochoid_r, k, a, results);
        }
    }
    for (std::size_t a = 1; a <= CONTACT_ANGLE_LAST; ++a) {
        // Neither power depends on speed and pressure.
        const double sum = torque_shares(design.numlobes, a, results);
        const double first = checked_pow(checked_at(results.lobe_arm, 1)[a], FORCE_EXPONENT);
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            for (std::size_t i = 0; i < GRID_SIZE; ++i) {
                results.contact_force[i][j][a] =
                    checked_divide(first * (results.drive_torque[i][j] * 1000.0), sum);
            }
        }
    }
}

}  // namespace kvt
