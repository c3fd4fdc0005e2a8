#include "exact/chamber.hpp"

#include "exact/quadrature.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvt {

namespace {

constexpr double PI = std::numbers::pi;
/// Of the integral along the inner flank: ten digits, also for the tight tips of slim lobes.
constexpr int PANELS = 64;

/// Where a lobe's contact stands about its lobe centre, from the direction to the outer axis.
double contact_on_lobe(const exact_pair& pair, double angle) {
    const point2 normal = contact_of_lobe(pair, angle).normal;
    return std::remainder(std::atan2(normal.y, normal.x) - angle - PI, 2.0 * PI);
}

/// The angles along the inner profile of the chamber: from the second contact to the first.
struct flank_range {
    double from = 0.0, to = 0.0;
};
flank_range flank_of_chamber(const exact_pair& pair, const chamber_lobes& lobes) {
    // The second lobe touches the next tooth, which is the first one's a whole turn back.
    return {lobes.first + pair.pitch() - 2.0 * PI, lobes.first};
}

std::vector<true_arc> outer_arcs(const exact_pair& pair, const lobe_outline& outline,
                                 const chamber_lobes& lobes) {
    return arcs_between(outline, pair.pitch(), contact_on_lobe(pair, lobes.first),
                        contact_on_lobe(pair, lobes.second));
}

/// Steps of an arc that keep the sagitta: chord c of radius r stands r (1 - cos(step / 2)) off.
int steps_of_arc(double radius, double sweep, double sagitta) {
    if (radius <= sagitta) {
        return 1;
    }
    const double step = 2.0 * std::acos(1.0 - sagitta / radius);
    return std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / step)));
}

/// Adds the points of an arc of the outer profile but its last one, in the resting frame.
void add_arc(const true_arc& arc, double lobe_angle, double ecc, double sagitta,
             std::vector<point2>& polygon) {
    const int steps = steps_of_arc(arc.radius, arc.to - arc.from, sagitta);
    for (int i = 0; i < steps; ++i) {
        const point2 point = turned(arc.at(arc.from + (arc.to - arc.from) * i / steps), lobe_angle);
        polygon.push_back({point.x - ecc, point.y});
    }
}

}  // namespace

double chamber_life(const exact_pair& pair) {
    return 2.0 * PI * pair.inner_turn();
}

chamber_lobes lobes_of_chamber(const exact_pair& pair, double place) {
    const double middle = -place / pair.inner_turn();
    return {middle - pair.pitch() / 2.0, middle + pair.pitch() / 2.0};
}

double chamber_rate(const exact_pair& pair, double place) {
    const chamber_lobes lobes = lobes_of_chamber(pair, place);
    return sweep_of_lobe(pair, lobes.second) - sweep_of_lobe(pair, lobes.first);
}

double chamber_area(const exact_pair& pair, const lobe_outline& outline, double place) {
    const chamber_lobes lobes = lobes_of_chamber(pair, place);
    // About the inner axis, which the outer rotor's frame sees at (ecc, 0) turned back.
    const point2 inner_axis = turned({pair.ecc, 0.0}, -lobes.first);
    double area = 0.0;
    for (const true_arc& arc : outer_arcs(pair, outline, lobes)) {
        area += arc_sweep(arc, inner_axis);
    }
    const flank_range flank = flank_of_chamber(pair, lobes);
    return area + integral([&](double angle) { return profile_sweep(pair, angle); }, flank.from,
                           flank.to, PANELS) /
                      2.0;
}

double chamber_volume(const exact_pair& pair, const lobe_outline& outline, double place) {
    return chamber_area(pair, outline, place) * pair.thick;
}

std::vector<point2> chamber_polygon(const exact_pair& pair, const lobe_outline& outline,
                                    double place, double sagitta) {
    const chamber_lobes lobes = lobes_of_chamber(pair, place);
    std::vector<point2> polygon;
    for (const true_arc& arc : outer_arcs(pair, outline, lobes)) {
        add_arc(arc, lobes.first, pair.ecc, sagitta, polygon);
    }
    const flank_range flank = flank_of_chamber(pair, lobes);
    // The flank bends most at the tips, where it is about as tight as a lobe.
    const double span = flank.to - flank.from;
    const int steps = 4 * steps_of_arc(pair.lobe_distance, span, sagitta);
    for (int i = 0; i < steps; ++i) {
        const double angle = flank.from + span * i / steps;
        // From the frame of the inner rotor to where it stands now.
        polygon.push_back(
            turned(inner_profile_point(pair, angle), lobes.first * pair.inner_turn()));
    }
    return polygon;
}

}  // namespace kvt
