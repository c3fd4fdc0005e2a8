#include "ports/outline_points.hpp"

#include "base/checked_math.hpp"
#include "ports/polar.hpp"

#include <cmath>

namespace kvt {

namespace {

/// The half turn of the arc cosine.
double half_pi() {
    return 2.0 * std::atan(1.0);
}

}  // namespace

void outline_points::add(point2 point) {
    static_cast<void>(to_int16(static_cast<double>(points_.size())));
    points_.push_back({checked_finite(point.x), checked_finite(point.y)});
}

void outline_points::add_arc(double r, double shift, double from_deg, double span_deg,
                             int direction) {
    const double bound = 2.0 * span_deg - 1.0;
    for (int k = 1; k <= bound; ++k) {
        add(on_circle(r, direction > 0 ? from_deg + k / 2.0 : from_deg - k / 2.0, shift));
    }
}

void outline_points::add_fillet(point2 c, double f, double base_deg, double sweep_deg) {
    const double bound = 2.0 * sweep_deg - 1.0;
    for (int k = 1; k <= bound; ++k) {
        const double angle = base_deg + k / 2.0;
        add({f * cos_deg(angle) + c.x, c.y - f * sin_deg(angle)});
    }
}

void outline_points::add_side(point2 from, point2 to) {
    const point2 step = {(to.x - from.x) / 20.0, (to.y - from.y) / 20.0};
    for (int k = 1; k <= 19; ++k) {
        add({from.x + k * step.x, from.y + k * step.y});
    }
}

void outline_points::mirror() {
    for (point2& point : points_) {
        point.y = -point.y;
    }
}

void outline_points::store(zeroed_array& x, zeroed_array& y, std::int16_t& last) const {
    const auto count = static_cast<std::int64_t>(points_.size());
    for (std::int64_t i = 0; i < count; ++i) {
        checked_at(x, i) = points_[static_cast<std::size_t>(i)].x;
        checked_at(y, i) = points_[static_cast<std::size_t>(i)].y;
    }
    for (std::int64_t i = count; i <= last; ++i) {
        checked_at(x, i) = 0.0;
        checked_at(y, i) = 0.0;
    }
    last = this->last();
}

double fillet_angle_deg(double f, double centre_r, double tangent_distance_squared) {
    const double c =
        checked_divide(f * f + centre_r * centre_r - tangent_distance_squared, 2.0 * centre_r * f);
    return degrees_of(arc_cosine_form(c, half_pi()));
}

double distance_squared(point2 point, double shift) {
    const double x = shift + point.x;
    return x * x + point.y * point.y;
}

double base_after_inner_arc(const port_corner& corner) {
    const double base = atan_deg(corner.c.y - corner.r.y, corner.r.x - corner.c.x);
    return base < 0.0 ? base + 180.0 : base;
}

double base_before_outer_arc(const port_corner& corner) {
    const double base = atan_deg(corner.c.y - corner.s.y, corner.s.x - corner.c.x);
    const bool below = corner.c.y - corner.s.y < 0.0;
    return (base > 0.0 && below) || base < 0.0 ? base + 180.0 : base;
}

}  // namespace kvt
