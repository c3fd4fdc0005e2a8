#include "geometry/chambers.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/chamber_window.hpp"
#include "geometry/polar_area.hpp"
#include "geometry/turned_profiles.hpp"

#include <cmath>
#include <cstddef>

namespace kvt {

namespace {

/// The points on one side of the y axis whose y/x lies between the tangents of the bounds.
struct side_window {
    double side;  ///< -1 left of the axis, 1 right of it
    double lowest, highest;

    bool is_on_side(const point2& point) const { return point.x * side > 0.0; }
    /// Whether a point no further than this away may lie in the window.
    bool may_hold(const point2& nearly, double off) const {
        return nearly.x * side > -off &&
               (nearly.y - lowest * nearly.x) * side >= -off * (1.0 + std::abs(lowest)) &&
               (highest * nearly.x - nearly.y) * side >= -off * (1.0 + std::abs(highest));
    }
    bool holds(const point2& point) const {
        if (!is_on_side(point)) {
            return false;
        }
        const double m = checked_divide(point.y, point.x);
        return lowest <= m && m <= highest;
    }
};

using triangle_rule = double (*)(const point2&, double, const point2&, double);

void check_first_point(const turned_profile& profile) {
    if (profile.size() == 0) {
        fail_index(0);
    }
}

bool may_hold(const side_window& window, const turned_profile& profile, std::size_t i) {
    return window.may_hold(profile.nearly(i), profile.nearness());
}

/// The triangle of the points i - 1 and i, the latter at hand.
double triangle_to(const turned_profile& profile, std::size_t i, const point2& point,
                   triangle_rule triangle_area) {
    const point2 before = profile[i - 1];
    return triangle_area(before, radius_of(before), point, radius_of(point));
}

/// The triangles of a turned profile that end in the window.
double window_sum(const side_window& window, const turned_profile& profile,
                  triangle_rule triangle_area) {
    check_first_point(profile);
    double area = 0.0;
    for (std::size_t i = 1; i < profile.size(); ++i) {
        if (!may_hold(window, profile, i)) {
            continue;
        }
        const point2 point = profile[i];
        if (window.holds(point)) {
            area += triangle_to(profile, i, point, triangle_area);
        }
    }
    return area;
}

/// What the outer sum of the minimum chamber leaves for the inner one.
struct outer_window_sum {
    double area = 0.0;
    point2 first_edge, last_edge;     ///< the point before the window's first, and its last one
    double b_min = 0.0, b_max = 0.0;  ///< smallest and largest angle met, both from 0, radians
};

outer_window_sum outer_sum(const side_window& window, const turned_profile& profile) {
    check_first_point(profile);
    outer_window_sum sum;
    bool started = false;
    for (std::size_t k = 1; k < profile.size(); ++k) {
        if (!may_hold(window, profile, k)) {
            continue;
        }
        const point2 point = profile[k];
        if (!window.holds(point)) {
            continue;
        }
        if (!started) {
            sum.first_edge = profile[k - 1];
            started = true;
        }
        sum.area += triangle_to(profile, k, point, outer_triangle_area);
        sum.last_edge = point;
        const double angle = std::atan(checked_divide(point.y, point.x));
        sum.b_min = std::fmin(sum.b_min, angle);
        sum.b_max = std::fmax(sum.b_max, angle);
    }
    return sum;
}

/// The inner side: the first point in the window is joined to the first edge point, the last one to
/// the last.
double inner_sum(const outer_window_sum& outer, const turned_profile& profile) {
    check_first_point(profile);
    const side_window window = {1.0, std::tan(outer.b_min), std::tan(outer.b_max)};
    double area = 0.0;
    bool started = false;
    bool ended = false;
    for (std::size_t i = 1; i < profile.size(); ++i) {
        const bool may_end = started && !ended;
        if (!may_end && !may_hold(window, profile, i)) {
            continue;
        }
        const point2 point = profile[i];
        if (window.holds(point)) {
            area += started ? triangle_to(profile, i, point, inner_triangle_area)
                            : inner_triangle_area(outer.first_edge, radius_of(outer.first_edge),
                                                  point, radius_of(point));
            started = true;
        } else if (may_end && window.is_on_side(point)) {
            area += triangle_to(profile, i, outer.last_edge, inner_triangle_area);
            ended = true;
        }
    }
    return area;
}

}  // namespace

void calculate_maximum_chamber(const design_params& design, rotor_profiles& rotors) {
    const bool even = design.numlobes % 2 == 0;
    const turned_profile inner =
        turned_inner_profile(even ? checked_divide(PI_D, design.numlobes - 1.0) : 0.0, rotors);
    const turned_profile outer =
        turned_outer_profile(even ? checked_divide(PI_D, design.numlobes) : 0.0, rotors);

    const chamber_window angles = window_of_chamber(design, rotors, PI_D - half_pitch(design));
    const double a_in = PI_D - angles.w1;
    const double a_out = PI_D - angles.w2;
    rotors.max_chamber_inner_angle = a_in * 180.0 / PI_D;
    rotors.max_chamber_outer_angle = a_out * 180.0 / PI_D;

    const side_window window = {-1.0, std::tan(PI_D - a_in), std::tan(PI_D + a_in)};
    const double inner_area = window_sum(window, inner, inner_triangle_area);
    const double outer_area = window_sum(window, outer, outer_triangle_area);
    rotors.max_chamber_area = outer_area - inner_area;
    rotors.max_chamber_volume = rotors.max_chamber_area * design.thick;
}

void calculate_minimum_chamber(const design_params& design, rotor_profiles& rotors) {
    const turned_profile inner =
        turned_inner_profile(checked_divide(PI_D, design.numlobes - 1.0), rotors);
    const turned_profile outer = turned_outer_profile_about_its_centre(
        checked_divide(PI_D, design.numlobes), design, rotors);

    const chamber_window angles = window_of_chamber(design, rotors, half_pitch(design));
    rotors.min_chamber_inner_angle = angles.w1 * 180.0 / PI_D;
    rotors.min_chamber_outer_angle = angles.w2 * 180.0 / PI_D;

    const outer_window_sum sum = outer_sum({1.0, std::tan(-angles.w1), std::tan(angles.w1)}, outer);
    rotors.min_chamber_area = sum.area - inner_sum(sum, inner);
    rotors.min_chamber_volume = rotors.min_chamber_area * design.thick;
}

}  // namespace kvt
