// Places of the Design view: its elements are single-precision numbers of twips, and the mouse
// points at millimetres of the design.
#pragma once

#include "geometry/point2.hpp"
#include "views/view_state.hpp"

#include <optional>

namespace kvt {

/// The nearest single-precision number. Throws overflow for what such a number can't hold, and for
/// no number.
float single(double twips);

/// The point under a place (x, y) twips of the picture, mm about the inner rotor axis, y up:
///     x_mm = (x - view_cx - view_ecc) / view_scale      y_mm = (view_cy - y) / view_scale
/// Nothing while view_scale is 0: no design has a scale yet. Throws overflow for what a double
/// can't hold.
std::optional<point2> cursor_position(double x, double y, const view_state& state);

}  // namespace kvt
