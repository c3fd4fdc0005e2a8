#include "output/step/step_rotors.hpp"

#include "base/checked_math.hpp"
#include "base/plain_number.hpp"
#include "output/step/step_entities.hpp"
#include "output/step/step_prism.hpp"
#include "output/step/step_wall.hpp"

#include <array>
#include <cmath>
#include <span>

namespace kvt {

namespace {

constexpr auto OUTER_ROWS = std::to_array<step_row>({
#include "output/step/step_outer_rotor.inc"
});

constexpr int FIRST_OUTER_POINT = 158;

/// The points 0 .. last of two lists; none before anything was calculated.
std::vector<point2> points_of(std::span<const double> x, std::span<const double> y,
                              std::int64_t last) {
    std::vector<point2> points;
    for (std::int64_t i = 0; i <= last; ++i) {
        points.push_back({checked_at(x, i), checked_at(y, i)});
    }
    return points;
}

/// Whether the last point is the first one up to rounding, and not a step of the profile before it.
bool repeats_first(const std::vector<point2>& points) {
    return points.size() > 1 &&
           distance(points.back(), points.front()) < 0.5 * distance(points[0], points[1]);
}

std::vector<step_value> outer_values(const design_params& design, const step_wall& bore) {
    const double radius = design.maxdiameter / 2.0;
    return {{"start", bore.start()},
            {"middle", bore.middle()},
            {"top", plain_number_text(design.thick)},
            {"depth", plain_number_text(design.thick)},
            {"radius", plain_number_text(radius)},
            {"centre", plain_number_text(-design.ecc)},
            {"right", plain_number_text(-design.ecc + radius)},
            {"left", plain_number_text(-design.ecc - radius)}};
}

}  // namespace

std::vector<point2> inner_rotor_contour(const rotor_profiles& rotors) {
    return points_of(rotors.inner_x, rotors.inner_y, to_int32(rotors.profile_points) - 1);
}

std::vector<point2> outer_rotor_contour(const rotor_profiles& rotors) {
    std::vector<point2> points = points_of(rotors.outer_x, rotors.outer_y, rotors.outer_last);
    if (repeats_first(points)) {
        points.pop_back();
    }
    return points;
}

void write_step_inner_body(text_lines& out, const design_params& design,
                           const rotor_profiles& rotors, int offset) {
    write_step_prism(out,
                     {"INNER ROTOR", "INNER ROTOR", inner_rotor_contour(rotors), 0.0, design.thick},
                     offset);
}

void write_step_outer_body(text_lines& out, const design_params& design,
                           const rotor_profiles& rotors, int offset) {
    const std::vector<point2> contour = outer_rotor_contour(rotors);
    step_wall bore(out, contour, 0.0, design.thick, FIRST_OUTER_POINT, offset);
    write_step_rows(out, OUTER_ROWS, outer_values(design, bore), offset);
    bore.write({.first_top = 102,
                .first_bottom = 148,
                .second_top = 103,
                .second_bottom = 149,
                .first_surface = 150,
                .second_surface = 157});
}

}  // namespace kvt
