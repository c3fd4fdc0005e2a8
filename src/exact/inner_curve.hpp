// inner_curve: the inner rotor's profile with its tip clearance as a curve with derivatives, and
// the spline that files hand on. In the frame of the inner rotor, lobe root at angle 0.
// Source: docs/formulas/written_files.md, "Exact inner rotor".
#pragma once

#include "core/design_params.hpp"
#include "exact/cubic_spline.hpp"
#include "exact/exact_pair.hpp"

#include <array>
#include <vector>

namespace kvt {

/// How far the spline may lie from the profile, mm.
inline constexpr double SPLINE_DEVIATION_MM = 1e-4;

/// The point of the profile at the generating angle t and its first four derivatives by t:
///     Q = R e^(it) - e e^(iNt) - r e^(i(t + f))      f = arg(R - N e e^(i(N-1)t))
/// t runs forward with the polar angle; the roots of the lobes stand at 2 pi k / (N-1).
std::array<point2, 5> inner_curve_at(const exact_pair& pair, double t);

/// How fast the profile runs along its trochoid, mm a radian: |R - N e e^(i(N-1)t)| - r (1 + f').
/// Not above 0 where the profile cuts itself.
double inner_curve_speed(const exact_pair& pair, double t);

/// The profile's fourth derivative by its own length, 1/mm3: by the chain rule from the derivatives
/// by t.
point2 fourth_derivative_by_length(const std::array<point2, 5>& curve);

/// A lobe's spline from the root at angle 0 to the next one, by the length of the profile.
struct inner_lobe {
    cubic_spline spline;
    std::vector<double> angles;  ///< generating angles at its knots
};

/// The lobe within SPLINE_DEVIATION_MM, its knots mirrored to the tip. They stand closer where the
/// fourth derivative is larger. Throws invalid_procedure_call for a profile that cuts itself.
inner_lobe inner_lobe_spline(const exact_pair& pair);

/// The largest distance of a lobe's spline from the profile along the profile's normals, looked
/// for at `places` - 1 places a span of its first half, mm.
double deviation_of_lobe(const exact_pair& pair, const inner_lobe& lobe, int places = 6);

/// Points of the profile from the root at angle 0 to the next one, whose straight lines lie within
/// a distance of it, mm; the last one belongs to the next lobe and is left out. Throws as
/// inner_lobe_spline does.
std::vector<point2> inner_lobe_points(const exact_pair& pair, double chord_error);

}  // namespace kvt
