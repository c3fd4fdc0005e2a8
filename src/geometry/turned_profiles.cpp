#include "geometry/turned_profiles.hpp"

#include "base/checked_math.hpp"
#include "geometry/polar_area.hpp"

#include <cmath>

namespace kvt {

namespace {

point2 turned(const point2& point, double rotation) {
    const double r = radius_of(point);
    const double angle = polar_angle(point) + rotation;
    return {r * std::cos(angle), r * std::sin(angle)};
}

}  // namespace

std::vector<point2> turned_inner_profile(double rotation, const rotor_profiles& rotors) {
    const std::int64_t count = to_int32(rotors.profile_points);
    std::vector<point2> profile;
    profile.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        profile.push_back(turned(point_at(rotors.inner_x, rotors.inner_y, i), rotation));
    }
    return profile;
}

std::vector<point2> turned_outer_profile(double rotation, const rotor_profiles& rotors) {
    std::vector<point2> profile;
    for (std::int64_t k = 0; k <= rotors.outer_xy_last; k += 2) {
        profile.push_back(turned(pair_at(rotors.outer_xy, k), rotation));
    }
    return profile;
}

std::vector<point2> turned_outer_profile_about_its_centre(double rotation,
                                                          const design_params& design,
                                                          const rotor_profiles& rotors) {
    std::vector<point2> profile;
    for (std::int64_t k = 0; k <= rotors.outer_xy_last; k += 2) {
        const point2 pair = pair_at(rotors.outer_xy, k);
        const point2 point = turned({design.ecc + pair.x, pair.y}, rotation);
        profile.push_back({k == 0 ? point.x : point.x - design.ecc, point.y});
    }
    return profile;
}

}  // namespace kvt
