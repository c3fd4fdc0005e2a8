// What the models of a design must be: the contours that the CNC files walk along, between two
// heights.
#pragma once

#include "app/program.hpp"
#include "cad/dispatch.hpp"
#include "support/cad/solids.hpp"
#include "support/property_runs.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kvt {

/// The outer rotor is made of arcs, or of the straight lines between the points of its file.
enum class outer_contour { arcs, chords };

struct expected_body {
    std::string name;
    flat_region inside;
    std::function<double(point2)> distance;  ///< from the contours, mm
    std::function<point2(random_values&)> point_on_contour;
    double from_z = 0.0, to_z = 0.0;
};

/// In the order in which the routines build them.
std::vector<expected_body> expected_bodies(const program& kavetta, model_kind kind,
                                           outer_contour outer);

/// Places of a body, half of them close to its contours, compared with the solid: the
/// same inside and outside, but for those that lie nearer than the band to its surface. Fails with
/// the first place that differs.
void expect_same_solid(const expected_body& expected, const solid& built, double band, int places,
                       random_values& random);

}  // namespace kvt
