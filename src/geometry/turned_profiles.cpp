#include "geometry/turned_profiles.hpp"

#include "base/checked_math.hpp"
#include "geometry/polar_area.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

point2 turned(const point2& point, double rotation) {
    const double r = radius_of(point);
    const double angle = polar_angle(point) + rotation;
    return {r * std::cos(angle), r * std::sin(angle)};
}

void set_pair(std::vector<double>& xy, std::int64_t k, double x, double y) {
    checked_at(xy, k) = x;
    checked_at(xy, k + 1) = y;
}

}  // namespace

void clear_working_copies(rotor_profiles& rotors, std::int32_t radius_last) {
    for (auto* list : {&rotors.rot_inner_x, &rotors.rot_inner_y, &rotors.rot_outer_xy}) {
        std::fill(list->begin(), list->end(), 0.0);
    }
    const std::int32_t last = std::max<std::int32_t>(rotors.outer_xy_last, radius_last);
    rotors.radius_scratch.assign(static_cast<std::size_t>(last) + 1, 0.0);
}

void turn_inner_profile(double rotation, rotor_profiles& rotors) {
    const std::int64_t points = to_int32(rotors.profile_points);
    for (std::int64_t i = 0; i < points; ++i) {
        const point2 point = turned(point_at(rotors.inner_x, rotors.inner_y, i), rotation);
        checked_at(rotors.rot_inner_x, i) = point.x;
        checked_at(rotors.rot_inner_y, i) = point.y;
    }
}

void turn_outer_profile(double rotation, rotor_profiles& rotors) {
    for (std::int64_t k = 0; k <= rotors.outer_xy_last; k += 2) {
        const point2 point = turned(pair_at(rotors.outer_xy, k), rotation);
        set_pair(rotors.rot_outer_xy, k, point.x, point.y);
    }
}

void turn_outer_profile_about_its_centre(double rotation, const design_params& design,
                                         rotor_profiles& rotors) {
    for (std::int64_t k = 0; k <= rotors.outer_xy_last; k += 2) {
        const point2 pair = pair_at(rotors.outer_xy, k);
        const point2 point = turned({design.ecc + pair.x, pair.y}, rotation);
        set_pair(rotors.rot_outer_xy, k, k == 0 ? point.x : point.x - design.ecc, point.y);
    }
}

}  // namespace kvt
