// The bodies of a design, built by the modeller without a package between.
#pragma once

#include "app/program.hpp"
#include "cad/builtin/saved_body.hpp"
#include "cad/model_outlines.hpp"

#include <string>
#include <vector>

namespace kvt {

struct built_body {
    builtin::saved_body saved;
    std::vector<std::vector<point2>> outlines;  ///< outer contour, then holes, as polygons
    double from_z = 0.0, to_z = 0.0;
    double area_tolerance = 0.0;  ///< of the spline against the polygon, relative
};

built_body built_inner_rotor(const program& kavetta);
built_body built_outer_rotor(const program& kavetta);
std::vector<built_body> built_porting(const program& kavetta);
/// All of them: inner, outer, porting.
std::vector<built_body> built_assembly(const program& kavetta);
std::vector<builtin::saved_body> saved_bodies(const std::vector<built_body>& bodies);

/// Positive when the polygon runs counter-clockwise.
double polygon_area(const std::vector<point2>& polygon);
/// The first outline less the others.
double outlined_area(const std::vector<std::vector<point2>>& outlines);

}  // namespace kvt
