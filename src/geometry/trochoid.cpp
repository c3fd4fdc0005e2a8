#include "geometry/trochoid.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/trochoid_spacing.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr double CURVATURE_MARGIN = 1.0005;
constexpr double MILLIONTHS_PER_DEGREE = 1000000.0;

/// Appends to the flat list of the trochoid.
void append_xy(rotor_profiles& rotors, std::int64_t& k, double x, double y) {
    checked_at(rotors.troch_xy, k) = x;
    checked_at(rotors.troch_xy, k + 1) = y;
    k += 2;
}

/// Computes and stores point i at the accumulated angle.
void store_point(const design_params& design, rotor_profiles& rotors, std::int64_t i,
                 double millionths) {
    const double degrees = millionths / MILLIONTHS_PER_DEGREE;
    const double t = degrees * PI_D / 180.0;
    const point2 point = trochoid_point(rotors.base_radius, rotors.roll_radius, design.ecc, t);
    checked_at(rotors.troch_angle, i) = t;
    checked_at(rotors.troch_x, i) = point.x;
    checked_at(rotors.troch_y, i) = point.y;
}

}  // namespace

void set_rolling_circles(const design_params& design, rotor_profiles& rotors) {
    const double inner_lobes = design.numlobes - 1.0;
    rotors.base_radius = checked_divide(design.radouter + design.radinnroot + design.ecc,
                                        checked_divide(1.0, inner_lobes) + 1.0);
    rotors.roll_radius = checked_divide(rotors.base_radius, inner_lobes);
}

void set_trochoid_parameters(const design_params& design, rotor_profiles& rotors) {
    set_rolling_circles(design, rotors);
    rotors.trochoid_r = design.radouter + design.radinnroot + design.ecc - design.clearn_half;
    rotors.trochoid_ratio = checked_divide(rotors.trochoid_r, design.numlobes * design.ecc);
}

double smallest_curvature_radius(const design_params& design, const rotor_profiles& rotors) {
    const double lobes = design.numlobes;
    const double K = rotors.trochoid_ratio;
    const double bracket = (K * K - 1.0) * (lobes - 1.0);
    if (bracket < 0.0) {
        return 0.0;
    }
    return checked_finite(checked_pow(checked_divide(3.0, lobes + 1.0), 1.5) *
                          checked_divide(1.0, K) * checked_pow(bracket, 0.5) * rotors.trochoid_r);
}

bool curves_too_tightly(const design_params& design, const rotor_profiles& rotors) {
    return design.radouter * CURVATURE_MARGIN > smallest_curvature_radius(design, rotors);
}

point2 trochoid_point(double base_radius, double roll_radius, double ecc, double t) {
    const double a = base_radius;
    const double b = roll_radius;
    const double e = ecc;
    const double rolled = checked_divide((b + a) * t, b);
    return {(b + a) * std::cos(t) - e * std::cos(rolled),
            (b + a) * std::sin(t) - e * std::sin(rolled)};
}

bool fill_trochoid(const design_params& design, rotor_profiles& rotors) {
    const double inner_lobes = design.numlobes - 1.0;
    const trochoid_spacing spacing = spacing_of_points(rotors.profile_points, inner_lobes);
    const std::int16_t lobe_end = to_int16(inner_lobes);
    double millionths = 0.0;
    std::int64_t i = 0;
    std::int64_t k = 0;
    for (std::int16_t lobe = 0; lobe < lobe_end; ++lobe) {
        const int count = spacing.points_of_lobe(lobe);
        for (int j = 1; j <= count; ++j, ++i) {
            millionths += spacing.step(lobe, j);
            store_point(design, rotors, i, millionths);
            append_xy(rotors, k, checked_at(rotors.troch_x, i), checked_at(rotors.troch_y, i));
            if (i == 1 && rotors.troch_y[1] < 0.0) {
                return false;
            }
        }
    }
    append_xy(rotors, k, rotors.troch_x[0], rotors.troch_y[0]);
    return true;
}

}  // namespace kvt
