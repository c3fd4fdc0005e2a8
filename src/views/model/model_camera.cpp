#include "views/model/model_camera.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace kvt {

namespace {

/// The share of the picture that a fitted model takes.
constexpr double FITTED_SHARE = 0.9;
constexpr double ORBIT_DEG_PER_PIXEL = 0.4;
constexpr double QUARTER_TURN_DEG = 90.0;

double radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

point3 scaled(const point3& direction, double length) {
    return {direction.x * length, direction.y * length, direction.z * length};
}

///     right = (cos t, sin t, 0)      away = (-sin t cos h, cos t cos h, -sin h)
///     up = right x away              t turn, h height above the horizon
view_axes axes_of(const view_direction& direction) {
    const double t = radians(direction.turn_deg);
    const double h = radians(direction.height_deg);
    const point3 right = {std::cos(t), std::sin(t), 0.0};
    const point3 away = {-std::sin(t) * std::cos(h), std::cos(t) * std::cos(h), -std::sin(h)};
    return {right, cross(right, away), away};
}

/// Lowest and highest of what is added.
struct extent {
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -std::numeric_limits<double>::infinity();

    void add(double value) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    double length() const { return highest - lowest; }
    double middle() const { return (lowest + highest) / 2.0; }
};

}  // namespace

model_camera::model_camera(int width, int height)
    : width_(std::max(width, 1)),
      height_(std::max(height, 1)),
      direction_(ISOMETRIC_VIEW),
      axes_(axes_of(direction_)) {}

picture_point model_camera::project(const point3& point) const {
    const point3 d = point - target_;
    return {width_ / 2.0 + pixels_per_mm_ * dot(d, axes_.right),
            height_ / 2.0 - pixels_per_mm_ * dot(d, axes_.up), dot(d, axes_.away)};
}

point3 model_camera::point_at(const picture_point& place) const {
    return target_ + scaled(axes_.right, (place.x - width_ / 2.0) / pixels_per_mm_) +
           scaled(axes_.up, (height_ / 2.0 - place.y) / pixels_per_mm_) +
           scaled(axes_.away, place.depth);
}

void model_camera::look_from(const view_direction& direction) {
    direction_ = direction;
    axes_ = axes_of(direction);
}

void model_camera::fit(const std::vector<point3>& points) {
    if (points.empty()) {
        return;
    }
    extent x;
    extent y;
    extent depth;
    for (const point3& point : points) {
        x.add(dot(point, axes_.right));
        y.add(dot(point, axes_.up));
        depth.add(dot(point, axes_.away));
    }
    target_ = scaled(axes_.right, x.middle()) + scaled(axes_.up, y.middle()) +
              scaled(axes_.away, depth.middle());
    const double pixels = std::min(width_ / std::max(x.length(), 1.0 / LARGEST_SCALE),
                                   height_ / std::max(y.length(), 1.0 / LARGEST_SCALE));
    pixels_per_mm_ = std::clamp(FITTED_SHARE * pixels, SMALLEST_SCALE, LARGEST_SCALE);
}

void model_camera::resize(int width, int height) {
    const double before = std::min(width_, height_);
    width_ = std::max(width, 1);
    height_ = std::max(height, 1);
    pixels_per_mm_ = std::clamp(pixels_per_mm_ * std::min(width_, height_) / before, SMALLEST_SCALE,
                                LARGEST_SCALE);
}

void model_camera::orbit(const point3& pivot, double right, double down) {
    const picture_point before = project(pivot);
    look_from({std::fmod(direction_.turn_deg - right * ORBIT_DEG_PER_PIXEL, 360.0),
               std::clamp(direction_.height_deg + down * ORBIT_DEG_PER_PIXEL, -QUARTER_TURN_DEG,
                          QUARTER_TURN_DEG)});
    target_ = target_ + (pivot - point_at(before));
}

void model_camera::pan(double right, double down) {
    target_ = target_ - scaled(axes_.right, right / pixels_per_mm_) +
              scaled(axes_.up, down / pixels_per_mm_);
}

void model_camera::zoom(double x, double y, double factor) {
    const point3 before = point_at({x, y, 0.0});
    pixels_per_mm_ = std::clamp(pixels_per_mm_ * factor, SMALLEST_SCALE, LARGEST_SCALE);
    target_ = target_ + (before - point_at({x, y, 0.0}));
}

model_camera model_camera::reduced(int divisor) const {
    model_camera small = *this;
    small.width_ = (width_ + divisor - 1) / divisor;
    small.height_ = (height_ + divisor - 1) / divisor;
    small.pixels_per_mm_ = pixels_per_mm_ / divisor;
    // Half a pixel of an odd size is left out on one side only.
    small.pan(static_cast<double>(width_) / divisor / 2.0 - small.width_ / 2.0,
              static_cast<double>(height_) / divisor / 2.0 - small.height_ / 2.0);
    return small;
}

model_camera model_camera::enlarged(int factor) const {
    model_camera large = *this;
    large.width_ = width_ * factor;
    large.height_ = height_ * factor;
    large.pixels_per_mm_ = pixels_per_mm_ * factor;
    return large;
}

}  // namespace kvt
