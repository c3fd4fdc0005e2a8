#include "exact/outer_outline.hpp"

#include "base/checked_math.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace kvt {

namespace {

constexpr double PI = std::numbers::pi;

/// The centre of the fillet before the lobe at angle 0.
point2 fillet_centre(const lobe_outline& outline) {
    return polar_point(outline.root_radius - outline.fillet, outline.root_angle);
}

double direction(const point2& from, const point2& to) {
    return std::atan2(to.y - from.y, to.x - from.x);
}

}  // namespace

point2 true_arc::at(double angle) const {
    const point2 way = polar_point(radius, angle);
    return {centre.x + way.x, centre.y + way.y};
}

lobe_outline outline_of_lobe(const design_params& design) {
    lobe_outline outline{design.radouter + design.radinnroot + design.ecc, design.radouter,
                         design.outer_root, design.fillet};
    const double to_fillet = outline.root_radius - outline.fillet;
    const double to_lobe = outline.lobe_distance;
    const double between = outline.lobe_radius + outline.fillet;
    const double cosine = (to_fillet * to_fillet + to_lobe * to_lobe - between * between) /
                          (2.0 * to_fillet * to_lobe);
    if (!(std::abs(cosine) <= 1.0)) {
        throw run_time_error(failure::invalid_procedure_call, "the lobe does not reach the root");
    }
    outline.root_angle = std::acos(cosine);
    outline.tangent_angle = PI - direction({to_lobe, 0.0}, fillet_centre(outline));
    return outline;
}

double arc_sweep(const true_arc& arc, const point2& about) {
    const point2 c = difference(arc.centre, about);
    return arc.radius / 2.0 *
           (arc.radius * (arc.to - arc.from) + c.x * (std::sin(arc.to) - std::sin(arc.from)) -
            c.y * (std::cos(arc.to) - std::cos(arc.from)));
}

std::vector<true_arc> arcs_between(const lobe_outline& outline, double pitch, double on_first,
                                   double on_second) {
    const double a = outline.root_angle;
    const double t = outline.tangent_angle;
    const point2 first = {outline.lobe_distance, 0.0};
    const point2 second = polar_point(outline.lobe_distance, pitch);
    const double to_fillet = outline.root_radius - outline.fillet;
    return {{first, outline.lobe_radius, PI + on_first, PI - t},
            {polar_point(to_fillet, a), outline.fillet, -t, a},
            {{0.0, 0.0}, outline.root_radius, a, pitch - a},
            {polar_point(to_fillet, pitch - a), outline.fillet, pitch - a, pitch + t},
            {second, outline.lobe_radius, pitch + PI + t, pitch + PI + on_second}};
}

double distance_to_outline(const lobe_outline& outline, double pitch, const point2& point) {
    // The point beside the nearest lobe, mirrored to its forward side.
    const double polar = std::atan2(point.y, point.x);
    const double angle = std::abs(polar - std::round(polar / pitch) * pitch);
    const point2 here = polar_point(std::hypot(point.x, point.y), angle);
    const point2 lobe = {outline.lobe_distance, 0.0};
    const point2 fillet = fillet_centre(outline);
    double least = std::numeric_limits<double>::infinity();
    if (PI - direction(lobe, here) <= outline.tangent_angle) {
        least = distance(here, lobe) - outline.lobe_radius;
    }
    if (const double to = direction(fillet, here);
        to >= -outline.tangent_angle && to <= outline.root_angle && outline.fillet > 0.0) {
        least = std::min(least, outline.fillet - distance(here, fillet));
    }
    if (angle >= outline.root_angle) {
        least = std::min(least, outline.root_radius - std::hypot(here.x, here.y));
    }
    return least;
}

}  // namespace kvt
