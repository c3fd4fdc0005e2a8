#include "geometry/interference.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/polar_area.hpp"

#include <cmath>
#include <vector>

namespace kvt {

namespace {

constexpr int FILLET_LAST = 100;
constexpr std::int64_t INNER_LAST = PROFILE_POINTS - 1;
constexpr double CUT = 10000.0;

/// A list of points in polar form. Kept: the arctangent has no quadrant correction on either side;
/// interference_test holds it.
struct polar_list {
    std::vector<double> radius, angle;
};

double plain_angle(const point2& point) {
    return std::atan(checked_divide(point.y, point.x));
}

/// The first inner lobe, turned back by half its pitch so that it lies about the x axis. The
/// elements behind the lobe stay 0 and take part in the search.
polar_list first_inner_lobe(const design_params& design, const rotor_profiles& rotors) {
    const double inner_lobes = design.numlobes - 1.0;
    const auto points = static_cast<std::size_t>(to_int32(rotors.profile_points));
    polar_list lobe{std::vector<double>(points, 0.0), std::vector<double>(points, 0.0)};
    const double half_lobe = checked_divide(PI_D, inner_lobes);
    const double last = floor_to_int(checked_divide(rotors.profile_points - 1.0, inner_lobes));
    for (std::int64_t i = 0; static_cast<double>(i) <= last; ++i) {
        const point2 point = point_at(rotors.inner_x, rotors.inner_y, i);
        checked_at(lobe.radius, i) = radius_of(point);
        checked_at(lobe.angle, i) = plain_angle(point) - half_lobe;
    }
    return lobe;
}

/// The first fillet, turned back by half an outer pitch about the outer centre and moved to the
/// inner axis.
polar_list meshing_fillet(const design_params& design, const rotor_profiles& rotors) {
    polar_list fillet{std::vector<double>(FILLET_LAST + 1, 0.0),
                      std::vector<double>(FILLET_LAST + 1, 0.0)};
    const double h = checked_divide(PI_D, design.numlobes);
    for (std::int64_t j = 0; j <= FILLET_LAST; ++j) {
        const point2 about_outer = point_at(rotors.fillet_x, rotors.fillet_y, j);
        const double r = radius_of(about_outer);
        const double a = plain_angle(about_outer) - h;
        const point2 point = {r * std::cos(a) - design.ecc, r * std::sin(a)};
        checked_at(fillet.radius, j) = radius_of(point);
        checked_at(fillet.angle, j) = plain_angle(point);
    }
    return fillet;
}

double apart(double a, double b) {
    return checked_pow((a - b) * (a - b), 0.5);
}

}  // namespace

std::optional<interference> find_interference(const design_params& design,
                                              const rotor_profiles& rotors) {
    const polar_list inner = first_inner_lobe(design, rotors);
    const polar_list fillet = meshing_fillet(design, rotors);
    interference found{100.0, 0.0};
    std::int64_t n = 0;
    for (std::int64_t j = 0; j <= FILLET_LAST; ++j) {
        const double angle = checked_at(fillet.angle, j);
        while (!(checked_at(inner.angle, n) > angle)) {
            ++n;
            if (n > INNER_LAST) {
                return std::nullopt;
            }
        }
        if (apart(checked_at(inner.angle, n), angle) >
            apart(checked_at(inner.angle, n - 1), angle)) {
            --n;
        }
        const double depth = checked_at(inner.radius, n) - checked_at(fillet.radius, j);
        if (depth > 0.0) {
            const double gap = floor_to_int(depth * CUT) / CUT;
            found.gap_max = std::fmax(found.gap_max, gap);
            found.gap_min = std::fmin(found.gap_min, gap);
        }
    }
    return found.gap_max > 0.0 ? std::optional(found) : std::nullopt;
}

}  // namespace kvt
