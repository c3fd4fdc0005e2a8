#include "exact/exact_pair.hpp"

#include <cmath>
#include <numbers>

namespace kvt {

namespace {

/// A quarter turn forward.
point2 quarter_turned(const point2& v) {
    return {-v.y, v.x};
}

point2 scaled(const point2& v, double by) {
    return {v.x * by, v.y * by};
}

point2 sum(const point2& a, const point2& b) {
    return {a.x + b.x, a.y + b.y};
}

/// The path of a lobe centre in the frame of the inner rotor, which turns back by inner_turn.
struct lobe_path {
    point2 first, second;  ///< its derivatives by the lobe's angle, turned into the resting frame
};

lobe_path path_of_lobe(const exact_pair& pair, double angle) {
    const double turn = pair.inner_turn();
    const point2 centre = lobe_centre(pair, angle);
    const point2 c1 = scaled({-std::sin(angle), std::cos(angle)}, pair.lobe_distance);
    const point2 c2 = scaled({-std::cos(angle), -std::sin(angle)}, pair.lobe_distance);
    return {difference(c1, scaled(quarter_turned(centre), turn)),
            difference(difference(c2, scaled(quarter_turned(c1), 2.0 * turn)),
                       scaled(centre, turn * turn))};
}

/// Of the lobe centre's path, positive where its centre of curvature lies on the side of the inner
/// rotor.
double path_curvature(const exact_pair& pair, double angle) {
    const lobe_path path = path_of_lobe(pair, angle);
    const double speed = std::hypot(path.first.x, path.first.y);
    const double curvature = cross(path.first, path.second) / (speed * speed * speed);
    const point2 normal = contact_of_lobe(pair, angle).normal;
    return dot(quarter_turned(path.first), normal) < 0.0 ? -curvature : curvature;
}

}  // namespace

double exact_pair::pitch() const {
    return 2.0 * std::numbers::pi / lobes;
}

exact_pair nominal_pair(const design_params& design) {
    return {design.numlobes, design.ecc, design.radouter + design.radinnroot + design.ecc,
            design.radouter, design.thick};
}

exact_pair pair_of_inner_rotor(const design_params& design) {
    exact_pair pair = nominal_pair(design);
    pair.lobe_radius += design.clearn_half;
    return pair;
}

point2 lobe_centre(const exact_pair& pair, double angle) {
    return sum({-pair.ecc, 0.0}, polar_point(pair.lobe_distance, angle));
}

lobe_contact contact_of_lobe(const exact_pair& pair, double angle) {
    const point2 centre = lobe_centre(pair, angle);
    const point2 way = difference(pair.pitch_point(), centre);
    const point2 normal = scaled(way, 1.0 / std::hypot(way.x, way.y));
    return {sum(centre, scaled(normal, pair.lobe_radius)), normal};
}

double sweep_of_lobe(const exact_pair& pair, double angle) {
    const point2 contact = contact_of_lobe(pair, angle).place;
    const point2 from_outer = sum(contact, {pair.ecc, 0.0});
    return pair.thick / 2.0 *
           (dot(from_outer, from_outer) / pair.inner_turn() - dot(contact, contact));
}

double flank_curvature(const exact_pair& pair, double angle) {
    const double path = path_curvature(pair, angle);
    return path / (1.0 - path * pair.lobe_radius);
}

double contact_curvature(const exact_pair& pair, double angle) {
    // 1/r + k/(1 - k r) in one fraction, which loses no digits.
    return 1.0 / (pair.lobe_radius * (1.0 - path_curvature(pair, angle) * pair.lobe_radius));
}

double profile_sweep(const exact_pair& pair, double angle) {
    const point2 centre = lobe_centre(pair, angle);
    const point2 way = difference(pair.pitch_point(), centre);
    const double length = std::hypot(way.x, way.y);
    const point2 normal = scaled(way, 1.0 / length);
    const point2 centre_moves = scaled({-std::sin(angle), std::cos(angle)}, pair.lobe_distance);
    const point2 way_moves = scaled(centre_moves, -1.0);
    const point2 normal_moves =
        scaled(difference(way_moves, scaled(normal, dot(normal, way_moves))), 1.0 / length);
    const point2 contact = sum(centre, scaled(normal, pair.lobe_radius));
    const point2 contact_moves = sum(centre_moves, scaled(normal_moves, pair.lobe_radius));
    return cross(contact, contact_moves) - pair.inner_turn() * dot(contact, contact);
}

point2 inner_profile_point(const exact_pair& pair, double angle) {
    return turned(contact_of_lobe(pair, angle).place, -angle * pair.inner_turn());
}

}  // namespace kvt
