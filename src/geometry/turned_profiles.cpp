#include "geometry/turned_profiles.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/polar_area.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace kvt {

namespace {

/// A product of rotations is off by this share of the largest length: PI_D is not the half turn
/// that points left of the axis have in their polar angle. The rest is rounding, with room.
constexpr double OFF =
    1e-9 + 2.0 * (PI_D > std::numbers::pi ? PI_D - std::numbers::pi : std::numbers::pi - PI_D);

std::vector<point2> outer_points(double right, const rotor_profiles& rotors) {
    std::vector<point2> points;
    points.reserve(static_cast<std::size_t>(std::max<int>(rotors.outer_xy_last, 0)) / 2 + 1);
    for (std::int64_t k = 0; k <= rotors.outer_xy_last; k += 2) {
        const point2 pair = pair_at(rotors.outer_xy, k);
        points.push_back({right + pair.x, pair.y});
    }
    return points;
}

}  // namespace

turned_profile::turned_profile(std::vector<point2> points, double rotation, double shift)
    : points_(std::move(points)),
      rotation_(rotation),
      cosine_(std::cos(rotation)),
      sine_(std::sin(rotation)),
      shift_(shift) {
    double largest = std::abs(shift);
    for (const point2& point : points_) {
        largest = std::max(largest, radius_of(point));
        checked_divide(point.y, point.x);
    }
    nearness_ = largest * OFF;
}

point2 turned_profile::operator[](std::size_t i) const {
    const double r = radius_of(points_[i]);
    const double angle = polar_angle(points_[i]) + rotation_;
    return {r * std::cos(angle) - shift_of(i), r * std::sin(angle)};
}

turned_profile turned_inner_profile(double rotation, const rotor_profiles& rotors) {
    const std::int64_t count = to_int32(rotors.profile_points);
    std::vector<point2> points;
    points.reserve(static_cast<std::size_t>(std::max<std::int64_t>(count, 0)));
    for (std::int64_t i = 0; i < count; ++i) {
        points.push_back(point_at(rotors.inner_x, rotors.inner_y, i));
    }
    return {std::move(points), rotation, 0.0};
}

turned_profile turned_outer_profile(double rotation, const rotor_profiles& rotors) {
    return {outer_points(0.0, rotors), rotation, 0.0};
}

turned_profile turned_outer_profile_about_its_centre(double rotation, const design_params& design,
                                                     const rotor_profiles& rotors) {
    return {outer_points(design.ecc, rotors), rotation, design.ecc};
}

}  // namespace kvt
