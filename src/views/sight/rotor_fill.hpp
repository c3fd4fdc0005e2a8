// rotor_fill: the surfaces that the outlines of the Design view enclose, as polygons in pixels of
// its box, clipped to it.
#pragma once

#include "geometry/point2.hpp"
#include "views/design_view.hpp"
#include "views/sight/view_box.hpp"

#include <vector>

namespace kvt {

/// Lowest first: the outer rotor's body up to the outside circle, the space within its profile, the
/// inner rotor; then the ports. Empty where nothing is drawn.
struct rotor_fill {
    std::vector<point2> body, space, inner;
    std::vector<point2> inlet, outlet, groove;
};

/// Of what is drawn, as it stands and turns.
rotor_fill fill_of(const design_view& view, const view_box& box);

/// The arcs of a closed profile, in any order and each in either direction, as one polygon, no
/// chord more than a quarter of a pixel beside its arc.
std::vector<point2> profile_of_arcs(const std::vector<drawn_arc>& arcs, const view_box& box);

/// A polygon within a square from (lowest, lowest) to (highest, highest); what crosses an edge runs
/// along it.
std::vector<point2> clipped_polygon(std::vector<point2> polygon, double lowest, double highest);

}  // namespace kvt
