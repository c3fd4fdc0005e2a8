// The epitrochoid from which the inner rotor is offset: its circles, the curvature check, its
// points.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/point2.hpp"

namespace kvt {

/// base_radius and roll_radius, mm:
///     a = (radouter + radinnroot + ecc) / (1/(N-1) + 1)      b = a/(N-1)
/// Source: docs/formulas/trochoid.md, "Circles".
void set_rolling_circles(const design_params& design, rotor_profiles& rotors);

/// The rolling circles, and
///     trochoid_r = radouter + radinnroot + ecc - clearn_half      trochoid_ratio K = trochoid_r /
///     (N ecc)
/// Throws division_by_zero when ecc is 0.
void set_trochoid_parameters(const design_params& design, rotor_profiles& rotors);

/// Estimate of the smallest radius of curvature of the trochoid, mm:
///     rho = (3/(N+1))^1.5 (1/K) ((K^2 - 1)(N-1))^0.5 trochoid_r      0 when (K^2 - 1)(N-1) < 0
/// Source: docs/formulas/trochoid.md, "Curvature".
double smallest_curvature_radius(const design_params& design, const rotor_profiles& rotors);

/// Whether the lobes don't fit into the tightest curve of the trochoid: radouter * 1.0005 > rho, a
/// margin of 0.05 percent.
bool curves_too_tightly(const design_params& design, const rotor_profiles& rotors);

/// Point of the epitrochoid, mm about the inner rotor axis.
///     x = (b + a) cos t - e cos((b + a) t / b)      y likewise with sin
/// a base_radius, b roll_radius, e ecc, all mm; t the generating angle, radians. Throws
/// division_by_zero when b is 0.
point2 trochoid_point(double base_radius, double roll_radius, double ecc, double t);

/// Fills troch_x, troch_y, troch_angle 0 .. P-1 and troch_xy, which repeats the first point at its
/// end. Point 0 lies one fine step past the positive x axis, the last point on it at 360 degrees.
/// Returns false, with the points not complete, when point 1 lies below the x axis: the trochoid
/// crosses itself. Throws overflow when the lobes don't fit the 16-bit counter.
bool fill_trochoid(const design_params& design, rotor_profiles& rotors);

}  // namespace kvt
