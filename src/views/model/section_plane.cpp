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

kept_space::kept_space(const std::vector<section_plane>& planes, const model_camera& camera) {
    for (const section_plane& plane : planes) {
        const double cosine = dot(plane.normal, camera.axes().away);
        const double into_plane = std::abs(cosine) > PARALLEL ? cosine : 0.0;
        const auto room = [&](double x, double y) {
            const double left = plane.offset - dot(plane.normal, camera.point_at({x, y, 0.0}));
            return into_plane == 0.0 ? left : left / into_plane;
        };
        const double c = room(0.0, 0.0);
        planes_.push_back({c, room(1.0, 0.0) - c, room(0.0, 1.0) - c, into_plane});
    }
}

kept_depths kept_space::at(double x, double y) const {
    kept_depths kept = {-INFINITE, INFINITE};
    for (const seen_plane& plane : planes_) {
        const double depth = plane.c + plane.c_x * x + plane.c_y * y;
        if (plane.into_plane < 0.0) {
            kept.from = std::max(kept.from, depth);
        } else if (plane.into_plane > 0.0) {
            kept.to = std::min(kept.to, depth);
        } else if (depth < 0.0) {
            return {INFINITE, -INFINITE};
        }
    }
    return kept;
}

}  // namespace kvt
