#include "geometry/maximum_chamber.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/chamber_window.hpp"
#include "geometry/polar_area.hpp"
#include "geometry/turned_profiles.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr std::int32_t RADIUS_LAST = 7200;

void turn_to_maximum(const design_params& design, rotor_profiles& rotors) {
    const bool even = design.numlobes % 2 == 0;
    turn_inner_profile(even ? checked_divide(PI_D, design.numlobes - 1.0) : 0.0, rotors);
    turn_outer_profile(even ? checked_divide(PI_D, design.numlobes) : 0.0, rotors);
}

/// The points left of the axis whose y/x lies between the tangents of the bounds.
struct left_window {
    double lowest, highest;

    bool holds(const point2& point) const {
        if (!(point.x < 0.0)) {
            return false;
        }
        const double m = checked_divide(point.y, point.x);
        return lowest <= m && m <= highest;
    }
};

double inner_sum(const left_window& window, rotor_profiles& rotors) {
    std::vector<double>& radius = rotors.radius_scratch;
    const std::int64_t points = to_int32(rotors.profile_points);
    checked_at(radius, 0) = radius_of(point_at(rotors.rot_inner_x, rotors.rot_inner_y, 0));
    double area = 0.0;
    for (std::int64_t i = 1; i < points; ++i) {
        const point2 before = point_at(rotors.rot_inner_x, rotors.rot_inner_y, i - 1);
        const point2 point = point_at(rotors.rot_inner_x, rotors.rot_inner_y, i);
        checked_at(radius, i) = radius_of(point);
        if (window.holds(point)) {
            area += inner_triangle_area(before, checked_at(radius, i - 1), point,
                                        checked_at(radius, i));
        }
    }
    return area;
}

double outer_sum(const left_window& window, rotor_profiles& rotors) {
    std::vector<double>& radius = rotors.radius_scratch;
    checked_at(radius, 0) = radius_of(pair_at(rotors.rot_outer_xy, 0));
    double area = 0.0;
    for (std::int64_t k = 2; k <= rotors.outer_xy_last; k += 2) {
        const point2 point = pair_at(rotors.rot_outer_xy, k);
        checked_at(radius, k) = radius_of(point);
        if (window.holds(point)) {
            area += outer_triangle_area(pair_at(rotors.rot_outer_xy, k - 2),
                                        checked_at(radius, k - 2), point, checked_at(radius, k));
        }
    }
    return area;
}

}  // namespace

void calculate_maximum_chamber(const design_params& design, rotor_profiles& rotors) {
    clear_working_copies(rotors, RADIUS_LAST);
    turn_to_maximum(design, rotors);

    const chamber_window angles = window_of_chamber(design, rotors, PI_D - half_pitch(design));
    const double a_in = PI_D - angles.w1;
    const double a_out = PI_D - angles.w2;
    rotors.max_chamber_inner_angle = a_in * 180.0 / PI_D;
    rotors.max_chamber_outer_angle = a_out * 180.0 / PI_D;

    const left_window window = {std::tan(PI_D - a_in), std::tan(PI_D + a_in)};
    const double inner = inner_sum(window, rotors);
    const double outer = outer_sum(window, rotors);
    rotors.max_chamber_area = outer - inner;
    rotors.max_chamber_volume = rotors.max_chamber_area * design.thick;
}

}  // namespace kvt
