#include "geometry/assist_search.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/capacity.hpp"
#include "geometry/quarter_steps.hpp"
#include "geometry/trochoid.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Taken off the eccentricity at which the rotors' tips would touch, mm.
constexpr double ECC_REDUCTION = 0.01;

// What a bound leaves to rounding when steps are passed over: more than the formulas can lose.
constexpr double RELATIVE_ROUNDING = 1e-12;
constexpr double SQUARE_ROUNDING = 1e-13;
/// More than the rounding of ecc to four decimals changes, mm.
constexpr double ECC_ROUNDING = 0.0001;
/// Just below what a fixed-point number holds.
constexpr double SAFE_ECC = 922337203685470.0;
constexpr double SAFE_VOLUME = 9.2233720e14;

/// The annulus volume (2 e - c)(2 r + 2 e - c) PI_D thick / 1000 of a stage 1 candidate, above
/// every rounding of it.
double volume_bound(const design_params& design, double root, double ecc) {
    const double c = design.clearn_half;
    const double tip = root + 2.0 * ecc - c;
    const double annulus = (2.0 * ecc - c) * (2.0 * root + 2.0 * ecc - c);
    return (annulus + SQUARE_ROUNDING * (tip * tip + root * root)) * PI_D * design.thick / 1000.0;
}

/// The bound grows like a square of the root radius on both sides of its minimum, for any
/// eccentricity between its two roundings; so a range whose ends stay below the required volume
/// stays below it everywhere.
bool stays_below(const design_params& design, double required, double root) {
    const double ecc = root / (design.numlobes - 2.0) - ECC_REDUCTION;
    const double bound = std::max(volume_bound(design, root, ecc - ECC_ROUNDING),
                                  volume_bound(design, root, ecc + ECC_ROUNDING));
    return bound < required && ecc < SAFE_ECC;
}

/// rho grows with the root radius, so a range whose upper end still curves too tightly does so
/// everywhere. The candidate capacity is linear in it, so it fits everywhere when it fits at both
/// ends.
bool still_curves_too_tightly(design_params design, rotor_profiles& rotors, double root) {
    design.radinnroot = root;
    const double pen = design.radouter + root + design.ecc;
    if (!(pen > 0.0) || !(design.ecc > 0.0)) {
        return false;
    }
    set_rolling_circles(design, rotors);
    rotors.trochoid_r = pen;
    rotors.trochoid_ratio = pen / (design.numlobes * design.ecc);
    const double rho = smallest_curvature_radius(design, rotors);
    return design.radouter > rho + RELATIVE_ROUNDING * (rho + design.radouter) &&
           std::fabs(annulus_volume(design, rotors)) < SAFE_VOLUME;
}

}  // namespace

fixed4 candidate_capacity(const design_params& design, const rotor_profiles& rotors) {
    return fixed4::from(annulus_volume(design, rotors));
}

fixed4 find_root_and_eccentricity(fixed4 required, design_params& design, rotor_profiles& rotors) {
    const auto none_ends = [&](double from, double to) {
        return stays_below(design, required.value(), from) &&
               stays_below(design, required.value(), to);
    };
    design.radouter = 0.0;
    design.radinnroot = design.shaftdiameter / 2.0 + design.minmaterial - QUARTER_MM;
    fixed4 candidate;
    while (candidate.scaled() <= required.scaled()) {
        design.radinnroot = pass_over_quarters(design.radinnroot, QUARTER_MM, none_ends);
        design.radinnroot = next_quarter(design.radinnroot, QUARTER_MM);
        design.ecc =
            fixed4::from(checked_divide(design.radinnroot, design.numlobes - 2.0) - ECC_REDUCTION)
                .value();
        set_rolling_circles(design, rotors);
        candidate = candidate_capacity(design, rotors);
    }
    design.outer_root =
        rotors.base_radius + design.ecc + rotors.roll_radius + design.ecc - design.radouter;
    return candidate;
}

bool exceeds_assist_diameter(const design_params& design) {
    return design.outer_root > design.maxdiameter / 2.0 - design.minmaterial;
}

fixed4 grow_root_to_curvature(design_params& design, rotor_profiles& rotors) {
    const auto none_ends = [&](double from, double to) {
        return still_curves_too_tightly(design, rotors, from) &&
               still_curves_too_tightly(design, rotors, to);
    };
    while (true) {
        rotors.trochoid_r = design.radouter + design.radinnroot + design.ecc;
        rotors.trochoid_ratio = checked_divide(rotors.trochoid_r, design.numlobes * design.ecc);
        if (!(design.radouter > smallest_curvature_radius(design, rotors))) {
            return candidate_capacity(design, rotors);
        }
        design.radinnroot = pass_over_quarters(design.radinnroot, QUARTER_MM, none_ends);
        design.radinnroot = next_quarter(design.radinnroot, QUARTER_MM);
        set_rolling_circles(design, rotors);
        static_cast<void>(
            candidate_capacity(design, rotors));  // fails as soon as it no longer fits
    }
}

}  // namespace kvt
