#include "geometry/minimum_chamber.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/chamber_window.hpp"
#include "geometry/polar_area.hpp"
#include "geometry/turned_profiles.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr std::int32_t RADIUS_LAST = 72000;

/// The points right of the axis whose y/x lies between the tangents of the bounds.
struct right_window {
    double lowest, highest;

    bool holds(const point2& point) const {
        if (!(point.x > 0.0)) {
            return false;
        }
        const double m = checked_divide(point.y, point.x);
        return lowest <= m && m <= highest;
    }
};

/// What the outer sum leaves for the inner one.
struct outer_window_sum {
    double area = 0.0;
    point2 first_edge,
        last_edge;  ///< the pair before the window's first, and the last pair in the window
    double b_min = 0.0, b_max = 0.0;  ///< smallest and largest angle met, both from 0, radians
};

outer_window_sum outer_sum(const right_window& window, rotor_profiles& rotors) {
    std::vector<double>& radius = rotors.radius_scratch;
    checked_at(radius, 0) = radius_of(pair_at(rotors.rot_outer_xy, 0));
    outer_window_sum sum;
    bool started = false;
    for (std::int64_t k = 2; k <= rotors.outer_xy_last; k += 2) {
        const point2 before = pair_at(rotors.rot_outer_xy, k - 2);
        const point2 point = pair_at(rotors.rot_outer_xy, k);
        checked_at(radius, k) = radius_of(point);
        if (!window.holds(point)) {
            continue;
        }
        if (!started) {
            sum.first_edge = before;
            started = true;
        }
        sum.area +=
            outer_triangle_area(before, checked_at(radius, k - 2), point, checked_at(radius, k));
        sum.last_edge = point;
        const double angle = std::atan(checked_divide(point.y, point.x));
        sum.b_min = std::fmin(sum.b_min, angle);
        sum.b_max = std::fmax(sum.b_max, angle);
    }
    return sum;
}

/// The inner side: the first point in the window is joined to the first edge point, the last one to
/// the last.
double inner_sum(const outer_window_sum& outer, rotor_profiles& rotors) {
    const right_window window = {std::tan(outer.b_min), std::tan(outer.b_max)};
    std::vector<double>& radius = rotors.radius_scratch;
    const std::int64_t points = to_int32(rotors.profile_points);
    checked_at(radius, 0) = radius_of(point_at(rotors.rot_inner_x, rotors.rot_inner_y, 0));
    double area = 0.0;
    bool started = false;
    bool ended = false;
    for (std::int64_t i = 1; i < points; ++i) {
        const point2 before = point_at(rotors.rot_inner_x, rotors.rot_inner_y, i - 1);
        const point2 point = point_at(rotors.rot_inner_x, rotors.rot_inner_y, i);
        const double r_before = checked_at(radius, i - 1);
        checked_at(radius, i) = radius_of(point);
        if (window.holds(point)) {
            area += started ? inner_triangle_area(before, r_before, point, checked_at(radius, i))
                            : inner_triangle_area(outer.first_edge, radius_of(outer.first_edge),
                                                  point, checked_at(radius, i));
            started = true;
        } else if (started && !ended && point.x > 0.0) {
            area +=
                inner_triangle_area(before, r_before, outer.last_edge, radius_of(outer.last_edge));
            ended = true;
        }
    }
    return area;
}

}  // namespace

void calculate_minimum_chamber(const design_params& design, rotor_profiles& rotors) {
    clear_working_copies(rotors, RADIUS_LAST);
    turn_inner_profile(checked_divide(PI_D, design.numlobes - 1.0), rotors);
    turn_outer_profile_about_its_centre(checked_divide(PI_D, design.numlobes), design, rotors);

    const chamber_window angles = window_of_chamber(design, rotors, half_pitch(design));
    rotors.min_chamber_inner_angle = angles.w1 * 180.0 / PI_D;
    rotors.min_chamber_outer_angle = angles.w2 * 180.0 / PI_D;

    const outer_window_sum outer = outer_sum({std::tan(-angles.w1), std::tan(angles.w1)}, rotors);
    const double inner = inner_sum(outer, rotors);
    rotors.min_chamber_area = outer.area - inner;
    rotors.min_chamber_volume = rotors.min_chamber_area * design.thick;
}

}  // namespace kvt
