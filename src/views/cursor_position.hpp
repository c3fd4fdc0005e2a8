// cursor_position: the point of the design that lies under a place of the picture.
#pragma once

#include "geometry/point2.hpp"
#include "views/view_state.hpp"

#include <optional>

namespace kvt {

/// The point under a place (x, y) twips of the picture, mm about the inner rotor axis, y up:
///     x_mm = (x - view_cx - view_ecc) / view_scale      y_mm = (view_cy - y) / view_scale
/// Nothing while view_scale is 0: no design has a scale yet. Throws overflow for what a double
/// can't hold.
std::optional<point2> cursor_position(double x, double y, const view_state& state);

}  // namespace kvt
