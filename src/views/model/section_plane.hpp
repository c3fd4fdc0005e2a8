// section_plane: a plane that cuts a model open, and which part of a line of sight it leaves.
#pragma once

#include "views/model/model_camera.hpp"

#include <vector>

namespace kvt {

/// What lies on the side of the normal is taken away: normal . point > offset. mm
struct section_plane {
    point3 normal;  ///< of length 1
    double offset = 0.0;

    friend bool operator==(const section_plane&, const section_plane&) = default;
};

/// Through the z axis, at an angle to the x axis: at 0 degrees the half in front, y < 0, is away.
section_plane section_through_axis(double degrees);
/// Across the axis: what is higher is away.
section_plane section_across_axis(double height);

/// The part of a line of sight that planes leave, depths in mm; empty when from > to.
struct kept_depths {
    double from, to;
};

/// What planes leave of all lines of sight of a camera.
class kept_space {
  public:
    kept_space(const std::vector<section_plane>& planes, const model_camera& camera);

    /// On the line of sight through a place of the picture.
    kept_depths at(double x, double y) const;

  private:
    /// c + c_x x + c_y y: the depth of the plane in the picture, mm, or for lines of sight along
    /// the plane how far they are inside of it.
    struct seen_plane {
        double c, c_x, c_y;
        double into_plane;  ///< cosine of the line of sight and the normal
    };

    std::vector<seen_plane> planes_;
};

}  // namespace kvt
