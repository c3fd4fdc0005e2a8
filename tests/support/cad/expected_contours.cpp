#include "support/cad/expected_contours.hpp"

#include "base/constants.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/outer_path.hpp"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace kvt {

namespace {

constexpr double TURN = 2.0 * std::numbers::pi;

/// An angle from 0 up to a whole turn.
double within_turn(double angle) {
    return angle - TURN * std::floor(angle / TURN);
}

double lobe_centre_radius(const design_params& design) {
    return design.radinnroot + design.ecc + design.radouter;
}

/// The angle of fillet_angle, without the rounding of its pi.
double true_fillet_angle(const design_params& design) {
    const double C = lobe_centre_radius(design), Rc = design.outer_root - design.fillet;
    const double reach = design.radouter + design.fillet;
    return std::acos((Rc * Rc + C * C - reach * reach) / (2.0 * Rc * C));
}

double area_beside(const circle_arc& arc) {
    const double b = arc.from, e = b + arc.sweep;
    return (arc.radius * arc.radius * arc.sweep +
            arc.radius * (arc.centre.x * (std::sin(e) - std::sin(b)) -
                          arc.centre.y * (std::cos(e) - std::cos(b)))) /
           2.0;
}

/// The lobe at theta, its fillet centre F at theta + alpha seen from the axis, psi the direction
/// from the lobe centre to F:
///     lobe from psi over pi to -psi, fillet from psi + pi to alpha, root from alpha to the next
///     lobe
std::vector<circle_arc> arcs_at(const design_params& design, double step, double alpha) {
    const double C = lobe_centre_radius(design);
    const point2 F = polar_point(design.outer_root - design.fillet, alpha);
    const double psi = std::atan2(F.y, F.x - C);
    const double fillet_sweep = within_turn(alpha - psi - TURN / 2.0);
    std::vector<circle_arc> arcs;
    for (int lobe = 1; lobe <= design.numlobes; ++lobe) {
        const double theta = lobe * step;
        const auto at = [&](double radius, double angle) {
            const point2 point = polar_point(radius, angle);
            return point2{point.x - design.ecc, point.y};
        };
        const double Rc = design.outer_root - design.fillet;
        arcs.push_back({at(C, theta), design.radouter, theta + psi, TURN - 2.0 * psi});
        if (design.fillet != 0.0) {
            arcs.push_back(
                {at(Rc, theta + alpha), design.fillet, theta + psi + TURN / 2.0, fillet_sweep});
            arcs.push_back({at(Rc, theta - alpha), design.fillet, theta - alpha, fillet_sweep});
        }
        arcs.push_back({at(0.0, 0.0), design.outer_root, theta + alpha, step - 2.0 * alpha});
    }
    return arcs;
}

}  // namespace

std::vector<circle_arc> bore_arcs(const design_params& design) {
    return arcs_at(design, TWO_PI_D / design.numlobes,
                   fillet_angle(design, lobe_centre_radius(design)));
}

double bore_area(const design_params& design) {
    const std::vector<circle_arc> arcs =
        arcs_at(design, TURN / design.numlobes, true_fillet_angle(design));
    const std::size_t arcs_of_lobe = design.fillet == 0.0 ? 2 : 4;
    double area = 0.0;
    for (std::size_t i = 0; i < arcs.size(); ++i) {
        area += (i % arcs_of_lobe == 0 ? -1.0 : 1.0) * area_beside(arcs[i]);
    }
    return area;
}

std::vector<point2> bore_chords(const design_params& design) {
    std::vector<point2> points = outer_path_points(outer_rotor_path(design));
    for (point2& point : points) {
        point.x -= design.ecc;
    }
    return points;
}

}  // namespace kvt
