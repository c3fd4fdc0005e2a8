// json_view: the Design view's lines and arcs as JSON, in twips.
#pragma once

#include "kvt/json_fields.hpp"
#include "views/design_view.hpp"

namespace kvt {

/// {"Picture1": [arcs], "Line1": [lines], ..., "Shape1": circle}: the members of design_view under
/// their names. A line is {x1, y1, x2, y2}, an arc {x, y, radius, start_angle, end_angle} with
/// angles in radians. Hidden elements are left out.
json json_view(const design_view& view);

}  // namespace kvt
