// section_plane: a plane that cuts a model open, and which part of a line of sight it leaves.
#pragma once

#include "views/model/model_camera.hpp"

#include <vector>

namespace kvt {

/// What lies on the side of the normal is taken away: normal . point > offset. mm
struct section_plane {
    point3 normal;  ///< of length 1
    double offset = 0.0;
};

/// Through the z axis, at an angle to the x axis: at 0 degrees the half in front, y < 0, is away.
section_plane section_through_axis(double degrees);
/// Across the axis: what is higher is away.
section_plane section_across_axis(double height);

/// The part of a line of sight that planes leave, depths in mm; empty when from > to.
struct kept_depths {
    double from, to;
};
/// The line of sight through a place of the picture.
kept_depths kept_depths_at(const std::vector<section_plane>& planes, const model_camera& camera,
                           double x, double y);

}  // namespace kvt
