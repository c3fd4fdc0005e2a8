#include "output/cnc/inner_offset.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>

namespace kvt {

namespace {

point2 trochoid_at(const rotor_profiles& rotors, std::int64_t i) {
    return {checked_at(rotors.troch_x, i % PROFILE_POINTS),
            checked_at(rotors.troch_y, i % PROFILE_POINTS)};
}

double offset_distance(const design_params& design, double tool_radius) {
    return design.clearn_half + design.radouter - tool_radius;
}

double axis_distance(point2 point) {
    return checked_sqrt(point.x * point.x + point.y * point.y);
}

point2 moved(point2 from, double angle, double distance) {
    return {from.x - std::cos(angle) * distance, from.y - std::sin(angle) * distance};
}

/// The two directions of the normal at a trochoid point, radians.
struct normal_angles {
    double a = 0.0, b = 0.0;
};

normal_angles normal_at(const rotor_profiles& rotors, std::int64_t i) {
    const point2 here = trochoid_at(rotors, i);
    const point2 next = trochoid_at(rotors, i + 1);
    const double s = checked_divide(next.y - here.y, next.x - here.x);
    const double a = std::atan(checked_divide(-1.0, s));
    return {a, a + PI_D};
}

double angle_by_quadrant(std::int64_t i, const normal_angles& normal) {
    const bool first_half = i < PROFILE_POINTS / 2;
    const bool takes_b = first_half ? normal.a < 0.0 : normal.a > 0.0;
    return takes_b ? normal.b : normal.a;
}

double literal_angle(const rotor_profiles& rotors, std::int64_t i, const normal_angles& normal,
                     double distance) {
    const point2 here = trochoid_at(rotors, i);
    double angle = angle_by_quadrant(i, normal);
    if (axis_distance(moved(here, angle, distance)) > axis_distance(here)) {
        // Kept: both tests run one after the other, so the angle is always a here;
        // inner_offset_test holds it.
        if (normal.a == angle) {
            angle = normal.b;
        }
        if (normal.b == angle) {
            angle = normal.a;
        }
    }
    return angle;
}

/// The direction that leads towards the axis; a negative distance then leads away from it.
double inward_angle(const rotor_profiles& rotors, std::int64_t i, const normal_angles& normal,
                    double distance) {
    const point2 here = trochoid_at(rotors, i);
    const double by_a = axis_distance(moved(here, normal.a, std::abs(distance)));
    const double by_b = axis_distance(moved(here, normal.b, std::abs(distance)));
    return by_b < by_a ? normal.b : normal.a;
}

}  // namespace

std::vector<point2> inner_offset_points(const design_params& design, const rotor_profiles& rotors,
                                        double tool_radius) {
    const double D = offset_distance(design, tool_radius);
    std::vector<point2> points;
    for (std::int64_t i = 0; i < PROFILE_POINTS; ++i) {
        points.push_back(
            moved(trochoid_at(rotors, i), literal_angle(rotors, i, normal_at(rotors, i), D), D));
    }
    return points;
}

std::vector<point2> checked_inner_offset_points(const design_params& design,
                                                const rotor_profiles& rotors, double tool_radius) {
    const double D = offset_distance(design, tool_radius);
    std::vector<point2> points;
    for (std::int64_t i = 0; i < PROFILE_POINTS; ++i) {
        points.push_back(
            moved(trochoid_at(rotors, i), inward_angle(rotors, i, normal_at(rotors, i), D), D));
    }
    return points;
}

int wrong_side_count(const design_params& design, const rotor_profiles& rotors,
                     double tool_radius) {
    const double D = offset_distance(design, tool_radius);
    int count = 0;
    for (std::int64_t i = 0; i < PROFILE_POINTS; ++i) {
        const normal_angles normal = normal_at(rotors, i);
        count += literal_angle(rotors, i, normal, D) != inward_angle(rotors, i, normal, D) ? 1 : 0;
    }
    return count;
}

}  // namespace kvt
