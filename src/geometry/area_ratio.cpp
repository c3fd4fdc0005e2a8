#include "geometry/area_ratio.hpp"

#include "base/checked_math.hpp"
#include "geometry/polar_area.hpp"

namespace kvt {

double inner_profile_area(const rotor_profiles& rotors) {
    const std::int64_t points = to_int32(rotors.profile_points);
    point2 before = point_at(rotors.inner_x, rotors.inner_y, 0);
    double r_before = radius_of(before);
    double area = 0.0;
    for (std::int64_t i = 1; i < points; ++i) {
        const point2 point = point_at(rotors.inner_x, rotors.inner_y, i);
        const double r = radius_of(point);
        area += inner_triangle_area(before, r_before, point, r);
        before = point;
        r_before = r;
    }
    return area;
}

double outer_profile_area(const rotor_profiles& rotors) {
    point2 before = pair_at(rotors.outer_xy, 0);
    double r_before = radius_of(before);
    double area = 0.0;
    for (std::int64_t k = 2; k <= rotors.outer_xy_last; k += 2) {
        const point2 point = pair_at(rotors.outer_xy, k);
        const double r = radius_of(point);
        area += outer_triangle_area(before, r_before, point, r);
        before = point;
        r_before = r;
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
