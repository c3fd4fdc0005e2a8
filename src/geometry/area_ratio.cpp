#include "geometry/area_ratio.hpp"

#include "base/checked_math.hpp"
#include "geometry/polar_area.hpp"

namespace kvt {

namespace {

constexpr int INNER_RADIUS_LAST = 7200;

}  // namespace

double inner_profile_area(rotor_profiles& rotors) {
    std::vector<double>& radius = rotors.radius_scratch;
    radius.assign(INNER_RADIUS_LAST + 1, 0.0);
    double area = 0.0;
    const std::int64_t points = to_int32(rotors.profile_points);
    checked_at(radius, 0) = radius_of(point_at(rotors.inner_x, rotors.inner_y, 0));
    for (std::int64_t i = 1; i < points; ++i) {
        const point2 before = point_at(rotors.inner_x, rotors.inner_y, i - 1);
        const point2 point = point_at(rotors.inner_x, rotors.inner_y, i);
        checked_at(radius, i) = radius_of(point);
        area += inner_triangle_area(before, radius[static_cast<std::size_t>(i - 1)], point,
                                    checked_at(radius, i));
    }
    return area;
}

double outer_profile_area(rotor_profiles& rotors) {
    std::vector<double>& radius = rotors.radius_scratch;
    radius.assign(static_cast<std::size_t>(rotors.outer_xy_last) + 1, 0.0);
    double area = 0.0;
    checked_at(radius, 0) = radius_of(pair_at(rotors.outer_xy, 0));
    for (std::int64_t k = 2; k <= rotors.outer_xy_last; k += 2) {
        const point2 point = pair_at(rotors.outer_xy, k);
        checked_at(radius, k) = radius_of(point);
        area += outer_triangle_area(pair_at(rotors.outer_xy, k - 2), checked_at(radius, k - 2),
                                    point, checked_at(radius, k));
    }
    return area;
}

void calculate_area_ratio(rotor_profiles& rotors) {
    const double inner = inner_profile_area(rotors);
    const double outer = outer_profile_area(rotors);
    rotors.area_ratio = checked_divide((outer - inner) * 100.0 * 100.0, outer) / 100.0;
    rotors.inner_area = inner;
    rotors.outer_area = outer;
}

}  // namespace kvt
