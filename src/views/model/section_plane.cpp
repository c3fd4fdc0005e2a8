#include "views/model/section_plane.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace kvt {

namespace {

constexpr double INFINITE = std::numeric_limits<double>::infinity();
/// The cosine below which a line of sight counts as parallel to a plane.
constexpr double PARALLEL = 1e-9;

}  // namespace

section_plane section_through_axis(double degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    return {{std::sin(angle), -std::cos(angle), 0.0}, 0.0};
}

section_plane section_across_axis(double height) {
    return {{0.0, 0.0, 1.0}, height};
}

kept_depths kept_depths_at(const std::vector<section_plane>& planes, const model_camera& camera,
                           double x, double y) {
    kept_depths kept = {-INFINITE, INFINITE};
    const point3 start = camera.point_at({x, y, 0.0});
    for (const section_plane& plane : planes) {
        const double into_plane = dot(plane.normal, camera.axes().away);
        const double room = plane.offset - dot(plane.normal, start);
        if (into_plane < -PARALLEL) {
            kept.from = std::max(kept.from, room / into_plane);
        } else if (into_plane > PARALLEL) {
            kept.to = std::min(kept.to, room / into_plane);
        } else if (room < 0.0) {
            return {INFINITE, -INFINITE};
        }
    }
    return kept;
}

}  // namespace kvt
