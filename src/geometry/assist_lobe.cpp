// Stage 2 of the Design assist: the lobe radius from below the limit of curvature.
#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/assist_search.hpp"
#include "geometry/number_range.hpp"
#include "geometry/quarter_steps.hpp"
#include "geometry/trochoid.hpp"

#include <cmath>
#include <cstdint>

namespace kvt {

namespace {

constexpr double HALF_TURN_POINTS = PROFILE_POINTS / 2.0;

/// More than the points of a bound lose by rounding, as a part of the trochoid's size.
constexpr double POINT_ROUNDING = 2e-14;
constexpr double RADIUS_ROUNDING = 1e-11;

double uniform_angle(std::int64_t i) {
    return static_cast<double>(i) * PI_D / HALF_TURN_POINTS;
}

point2 uniform_point(const design_params& design, const rotor_profiles& rotors, std::int64_t i) {
    if (i < 0 || i >= PROFILE_POINTS) {
        throw run_time_error(failure::subscript_out_of_range, "a flank without points");
    }
    return trochoid_point(rotors.base_radius, rotors.roll_radius, design.ecc - design.clearn_half,
                          uniform_angle(i));
}

/// The first of the two neighbouring points on either side of the middle of the first inner lobe.
struct flank_indexes {
    std::int64_t i1 = 0, i2 = 0;
};

flank_indexes indexes_of_flank(const design_params& design) {
    const double n = round_half_even(checked_divide(HALF_TURN_POINTS, design.numlobes) - 1.0);
    return {to_int32(n * 0.6), to_int32(n * 1.4)};
}

/// Slope of the normal to the chord of two points.
double normal_slope(const point2& p, const point2& q) {
    return checked_divide(-1.0, checked_divide(q.y - p.y, q.x - p.x));
}

/// Radius of the circle about the point in which the normals at i1 and i2 meet, through the point
/// i1, mm.
double flank_radius(const design_params& design, const rotor_profiles& rotors,
                    const flank_indexes& at) {
    const point2 p1 = uniform_point(design, rotors, at.i1);
    const point2 p2 = uniform_point(design, rotors, at.i2);
    const double m1 = normal_slope(p1, uniform_point(design, rotors, at.i1 + 1));
    const double m2 = normal_slope(p2, uniform_point(design, rotors, at.i2 + 1));
    const double cx = checked_divide(p2.y - p1.y + p1.x * m1 - p2.x * m2, m1 - m2);
    const double cy = p1.y - (p1.x - cx) * m1;
    return checked_sqrt((p1.x - cx) * (p1.x - cx) + (p1.y - cy) * (p1.y - cy));
}

double radius_limit(const design_params& design) {
    const double N = design.numlobes;
    return checked_divide(N * design.radouter, N - 1.0) + design.ecc;
}

/// What the trochoid's points can be while its size a + b lies in a range. A point is size (cos t,
/// sin t) - pen (cos Nt, sin Nt).
struct trochoid_range {
    number_range size;
    double pen, lobes;

    double error() const { return POINT_ROUNDING * (size.high + std::fabs(pen)); }
    number_range x(std::int64_t i) const {
        const double t = uniform_angle(i);
        return widened(size * std::cos(t) - constant(pen * std::cos(lobes * t)), error());
    }
    number_range y(std::int64_t i) const {
        const double t = uniform_angle(i);
        return widened(size * std::sin(t) - constant(pen * std::sin(lobes * t)), error());
    }
    /// Slope of the normal to the chord from i to i + 1.
    number_range normal(std::int64_t i) const {
        const double t = uniform_angle(i);
        const double u = uniform_angle(i + 1);
        const number_range dx =
            widened(size * (std::cos(u) - std::cos(t)) -
                        constant(pen * (std::cos(lobes * u) - std::cos(lobes * t))),
                    error());
        const number_range dy =
            widened(size * (std::sin(u) - std::sin(t)) -
                        constant(pen * (std::sin(lobes * u) - std::sin(lobes * t))),
                    error());
        return constant(-1.0) / (dy / dx);
    }
    static number_range constant(double number) { return {number, number}; }
};

/// The square of flank_radius while the size lies in the range; not a number where a quotient could
/// be by 0.
number_range flank_square_range(const trochoid_range& trochoid, const flank_indexes& at) {
    const number_range x1 = trochoid.x(at.i1);
    const number_range y1 = trochoid.y(at.i1);
    const number_range m1 = trochoid.normal(at.i1);
    const number_range m2 = trochoid.normal(at.i2);
    const number_range cx = (trochoid.y(at.i2) - y1 + x1 * m1 - trochoid.x(at.i2) * m2) / (m1 - m2);
    const number_range to_centre = x1 - cx;
    return square_of(to_centre) + square_of(to_centre * m1);
}

bool stays_within_limit(design_params design, const flank_indexes& at, double from, double to) {
    const double base = design.radinnroot + design.ecc;
    const trochoid_range trochoid = {{to + base, from + base},
                                     design.ecc - design.clearn_half,
                                     static_cast<double>(design.numlobes)};
    design.radouter = to;
    const double limit = radius_limit(design) * (1.0 - RADIUS_ROUNDING);
    if (!(trochoid.size.low > 0.0) || !(limit > 0.0)) {
        return false;
    }
    return flank_square_range(trochoid, at).high < limit * limit;
}

void fill_uniform_trochoid(const design_params& design, rotor_profiles& rotors) {
    for (std::int64_t i = 0; i < PROFILE_POINTS; ++i) {
        const point2 point = uniform_point(design, rotors, i);
        checked_at(rotors.troch_angle, i) = uniform_angle(i);
        checked_at(rotors.troch_x, i) = point.x;
        checked_at(rotors.troch_y, i) = point.y;
    }
}

}  // namespace

void find_lobe_radius(design_params& design, rotor_profiles& rotors) {
    const flank_indexes at = indexes_of_flank(design);
    const auto none_ends = [&](double from, double to) {
        return stays_within_limit(design, at, from, to);
    };
    design.radouter = round_half_even(design.numlobes * design.ecc) + QUARTER_MM;
    do {
        design.radouter = pass_over_quarters(design.radouter, -QUARTER_MM, none_ends);
        design.radouter = next_quarter(design.radouter, -QUARTER_MM);
        set_rolling_circles(design, rotors);
    } while (!(flank_radius(design, rotors, at) > radius_limit(design)));
    fill_uniform_trochoid(design, rotors);
}

}  // namespace kvt
