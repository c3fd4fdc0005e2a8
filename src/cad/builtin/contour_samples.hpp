// contour_samples: points along the kernel's curves, and the areas within them, without the
// kernel's own measures: those are wrong by percents on a spline of thousands of spans. Source:
// docs/formulas/solid_models.md, "Areas".
#pragma once

#include "cad/builtin/kernel_shapes.hpp"

#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <vector>

namespace kvt::builtin {

/// Whether the kernel takes two points for one.
bool is_same_place(point2 a, point2 b);

/// Points in the order of the wire: 8 a span of a spline, 3600 a whole circle, the ends of a line.
/// The last one of a closed wire doesn't repeat the first.
std::vector<point2> sampled_points(const TopoDS_Wire& one);

/// Area within a closed wire, positive when it runs counter-clockwise:
///     A = 1/2 (integral of x dy - y dx)
/// by 5 Gauss points a span, which is exact for cubic splines and lines, and to 1e-13 for circles.
double signed_area(const TopoDS_Wire& one);

/// Of the horizontal faces at the top of a solid. Throws when it has none.
body_measures measures_of(const TopoDS_Shape& solid);

}  // namespace kvt::builtin
