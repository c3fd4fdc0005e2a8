#include "geometry/chambers.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/chamber_window.hpp"
#include "geometry/polar_area.hpp"
#include "geometry/turned_profiles.hpp"

#include <cmath>
#include <vector>

namespace kvt {

namespace {

using points = std::vector<point2>;

/// The points on one side of the y axis whose y/x lies between the tangents of the bounds.
struct side_window {
    double side;  ///< -1 left of the axis, 1 right of it
    double lowest, highest;

    bool is_on_side(const point2& point) const { return point.x * side > 0.0; }
    bool holds(const point2& point) const {
        if (!is_on_side(point)) {
            return false;
        }
        const double m = checked_divide(point.y, point.x);
        return lowest <= m && m <= highest;
    }
};

using triangle_rule = double (*)(const point2&, double, const point2&, double);

/// The triangles of a turned profile that end in the window.
double window_sum(const side_window& window, const points& profile, triangle_rule triangle_area) {
    double area = 0.0;
    double r_before = radius_of(checked_at(profile, 0));
    for (std::size_t i = 1; i < profile.size(); ++i) {
        const double r = radius_of(profile[i]);
        if (window.holds(profile[i])) {
            area += triangle_area(profile[i - 1], r_before, profile[i], r);
        }
        r_before = r;
    }
    return area;
}

/// What the outer sum of the minimum chamber leaves for the inner one.
struct outer_window_sum {
    double area = 0.0;
    point2 first_edge, last_edge;     ///< the point before the window's first, and its last one
    double b_min = 0.0, b_max = 0.0;  ///< smallest and largest angle met, both from 0, radians
};

outer_window_sum outer_sum(const side_window& window, const points& profile) {
    outer_window_sum sum;
    bool started = false;
    double r_before = radius_of(checked_at(profile, 0));
    for (std::size_t k = 1; k < profile.size(); ++k) {
        const point2& point = profile[k];
        const double r = radius_of(point);
        if (window.holds(point)) {
            if (!started) {
                sum.first_edge = profile[k - 1];
                started = true;
            }
            sum.area += outer_triangle_area(profile[k - 1], r_before, point, r);
            sum.last_edge = point;
            const double angle = std::atan(checked_divide(point.y, point.x));
            sum.b_min = std::fmin(sum.b_min, angle);
            sum.b_max = std::fmax(sum.b_max, angle);
        }
        r_before = r;
    }
    return sum;
}

/// The inner side: the first point in the window is joined to the first edge point, the last one to
/// the last.
double inner_sum(const outer_window_sum& outer, const points& profile) {
    const side_window window = {1.0, std::tan(outer.b_min), std::tan(outer.b_max)};
    double area = 0.0;
    bool started = false;
    bool ended = false;
    double r_before = radius_of(checked_at(profile, 0));
    for (std::size_t i = 1; i < profile.size(); ++i) {
        const point2& point = profile[i];
        const double r = radius_of(point);
        if (window.holds(point)) {
            area += started ? inner_triangle_area(profile[i - 1], r_before, point, r)
                            : inner_triangle_area(outer.first_edge, radius_of(outer.first_edge),
                                                  point, r);
            started = true;
        } else if (started && !ended && window.is_on_side(point)) {
            area += inner_triangle_area(profile[i - 1], r_before, outer.last_edge,
                                        radius_of(outer.last_edge));
            ended = true;
        }
        r_before = r;
    }
    return area;
}

}  // namespace

void calculate_maximum_chamber(const design_params& design, rotor_profiles& rotors) {
    const bool even = design.numlobes % 2 == 0;
    const points inner =
        turned_inner_profile(even ? checked_divide(PI_D, design.numlobes - 1.0) : 0.0, rotors);
    const points outer =
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
    const points inner = turned_inner_profile(checked_divide(PI_D, design.numlobes - 1.0), rotors);
    const points outer = turned_outer_profile_about_its_centre(
        checked_divide(PI_D, design.numlobes), design, rotors);

    const chamber_window angles = window_of_chamber(design, rotors, half_pitch(design));
    rotors.min_chamber_inner_angle = angles.w1 * 180.0 / PI_D;
    rotors.min_chamber_outer_angle = angles.w2 * 180.0 / PI_D;

    const outer_window_sum sum = outer_sum({1.0, std::tan(-angles.w1), std::tan(angles.w1)}, outer);
    rotors.min_chamber_area = sum.area - inner_sum(sum, inner);
    rotors.min_chamber_volume = rotors.min_chamber_area * design.thick;
}

}  // namespace kvt
