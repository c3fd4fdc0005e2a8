// model_camera: from which side, how large and where a model is seen, without perspective.
#pragma once

#include "geometry/point3.hpp"

#include <vector>

namespace kvt {

/// A place in the picture: pixels from the upper left corner, x right, y down, the centre of the
/// first pixel at (0.5, 0.5); the depth grows away from the eye, mm.
struct picture_point {
    double x = 0.0, y = 0.0, depth = 0.0;
};

/// The directions of the picture in space, of length 1.
struct view_axes {
    point3 right, up, away;
};

/// Where the eye stands: the turn about the z axis, 0 in front (looking along +y),
/// counter-clockwise as seen from above, and the height above the horizon, -90 .. 90; both degrees.
struct view_direction {
    double turn_deg = 0.0, height_deg = 0.0;
};

inline constexpr view_direction FRONT_VIEW = {0.0, 0.0};
inline constexpr view_direction TOP_VIEW = {0.0, 90.0};
inline constexpr view_direction RIGHT_VIEW = {90.0, 0.0};
/// The three axes are equally short: sin h = 1 / sqrt 3.
inline constexpr view_direction ISOMETRIC_VIEW = {45.0, 35.26438968275466};

class model_camera {
  public:
    /// A picture of a size in pixels, at least 1 by 1.
    model_camera(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    double pixels_per_mm() const { return pixels_per_mm_; }
    const view_axes& axes() const { return axes_; }

    /// With d = point - target:
    ///     x = width / 2 + scale d . right    y = height / 2 - scale d . up    depth = d . away
    picture_point project(const point3& point) const;
    /// The point of space that project() takes there.
    point3 point_at(const picture_point& place) const;

    /// The eye goes to a standard side; what stood in the middle stays there.
    void look_from(const view_direction& direction);
    /// Shows all points as large as fits, with a margin. Without points nothing happens.
    void fit(const std::vector<point3>& points);
    /// Another size of the picture with the same middle, and the same share of the smaller side.
    void resize(int width, int height);
    /// Drags the surface under the pointer: the eye turns, and the pivot stays where it is in the
    /// picture. Pixels, right and down.
    void orbit(const point3& pivot, double right, double down);
    /// Moves the model in the picture, pixels.
    void pan(double right, double down);
    /// Makes everything `factor` times as large about a place, which stays. The scale is kept
    /// within SMALLEST_SCALE .. LARGEST_SCALE.
    void zoom(double x, double y, double factor);
    /// The same view in a picture of a share of the size, rounded up, or of several times the size.
    model_camera reduced(int divisor) const;
    model_camera enlarged(int factor) const;

    /// Pixels a millimetre.
    static constexpr double SMALLEST_SCALE = 1e-3, LARGEST_SCALE = 1e5;

  private:
    int width_, height_;
    point3 target_;  ///< in the middle of the picture
    view_direction direction_;
    view_axes axes_;
    double pixels_per_mm_ = 1.0;
};

}  // namespace kvt
