#include "geometry/inner_rotor.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/point2.hpp"

#include <cmath>

namespace kvt {

namespace {

/// Whether a lies nearer to the axis than b, by the rounded powers of the squares of their
/// distances; these may be equal where the squares are not. Where the squares are clearly apart, so
/// are the powers.
bool is_nearer(const point2& a, const point2& b) {
    constexpr double CLEARLY = 1.0 + 1e-12;
    const double square_a = (a.x * a.x) + (a.y * a.y);
    const double square_b = (b.x * b.x) + (b.y * b.y);
    if (checked_finite(square_a) * CLEARLY < checked_finite(square_b)) {
        return true;
    }
    if (square_b * CLEARLY < square_a) {
        return false;
    }
    return checked_pow(square_a, 0.5) < checked_pow(square_b, 0.5);
}

/// dy/dx at i by the central difference, 0 where dx is 0. before is i-1, for i = 0 the last point.
double slope_at(const rotor_profiles& rotors, std::int64_t i, std::int64_t before) {
    const double dy =
        (checked_at(rotors.troch_y, i + 1) - checked_at(rotors.troch_y, before)) / 2.0;
    const double dx =
        (checked_at(rotors.troch_x, i + 1) - checked_at(rotors.troch_x, before)) / 2.0;
    return dx == 0.0 ? 0.0 : checked_divide(dy, dx);
}

/// The point at distance d from a trochoid point along its normal, towards the axis. Equal
/// distances from the axis keep the first result.
point2 offset_point(const point2& troch, double slope, double d) {
    const double normal = checked_divide(-1.0, slope);
    const double phi = std::atan(normal);
    const double psi = phi + PI_D;
    const point2 first = {troch.x - d * std::cos(psi), troch.y - d * std::sin(psi)};
    if (is_nearer(troch, first)) {
        return {troch.x - d * std::cos(phi), troch.y - d * std::sin(phi)};
    }
    return first;
}

/// The last two elements of the plot list repeat its first point, which is inner point coarseness
/// - 1.
void close_plot_list(const design_params& design, rotor_profiles& rotors) {
    const std::int64_t first = design.coarseness - 1;
    checked_at(rotors.inner_plot_xy, to_int32(rotors.inner_plot_len - 1.0)) =
        checked_at(rotors.inner_x, first);
    checked_at(rotors.inner_plot_xy, to_int32(rotors.inner_plot_len)) =
        checked_at(rotors.inner_y, first);
}

}  // namespace

void fill_inner_rotor(const design_params& design, rotor_profiles& rotors) {
    const std::int64_t points = to_int32(rotors.profile_points);
    const double d = design.radouter + design.clearn_half;
    std::int64_t k = 0;
    int sample = 0;
    for (std::int64_t i = 0; i < points; ++i) {
        if (i == points - 1) {
            checked_at(rotors.troch_y, points) = rotors.troch_y[0];
            checked_at(rotors.troch_x, points) = rotors.troch_x[0];
        }
        checked_at(rotors.troch_angle, i) =
            checked_divide(static_cast<double>(i) * PI_D, rotors.profile_points / 2.0);
        const double slope = slope_at(rotors, i, i == 0 ? points - 1 : i - 1);
        checked_at(rotors.troch_slope, i) = slope;
        const point2 inner =
            offset_point({checked_at(rotors.troch_x, i), checked_at(rotors.troch_y, i)}, slope, d);
        checked_at(rotors.inner_x, i) = inner.x;
        checked_at(rotors.inner_y, i) = inner.y;
        ++sample;
        if (sample == design.coarseness) {
            checked_at(rotors.inner_plot_xy, k) = inner.x;
            checked_at(rotors.inner_plot_xy, k + 1) = inner.y;
            k += 2;
            sample = 0;
        }
    }
    close_plot_list(design, rotors);
}

double measured_lobe_radius(const design_params& design, const rotor_profiles& rotors) {
    const double half =
        round_half_even(checked_divide(rotors.profile_points / 2.0, design.numlobes - 1.0));
    const std::int32_t i1 = to_int32(half * 0.6);
    const std::int32_t i2 = to_int32(half * 1.4);
    const point2 p1 = {checked_at(rotors.troch_x, i1), checked_at(rotors.troch_y, i1)};
    const point2 p2 = {checked_at(rotors.troch_x, i2), checked_at(rotors.troch_y, i2)};
    const double m1 = checked_divide(-1.0, checked_at(rotors.troch_slope, i1));
    const double m2 = checked_divide(-1.0, checked_at(rotors.troch_slope, i2));
    const double cx = checked_divide(p2.y - p1.y + p1.x * m1 - p2.x * m2, m1 - m2);
    const double cy = p1.y - (p1.x - cx) * m1;
    return checked_sqrt((p1.x - cx) * (p1.x - cx) + (p1.y - cy) * (p1.y - cy));
}

}  // namespace kvt
