// drawn_dimensions: the dimensions of the rotor pair as dimension lines in the Design view.
#pragma once

#include "core/design_params.hpp"
#include "core/length_unit.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/sight/view_box.hpp"

#include <cstdint>

namespace kvt {

/// How far the pair is turned, degrees, clockwise on the screen.
struct pair_turn {
    double inner_deg = 0.0, outer_deg = 0.0;
};

/// Outside diameter (above the pair), root radius of the outer rotor (upper right), lobe radius
/// (upper left), root radius of the inner rotor (lower right), shaft diameter with its circle
/// (lower left), eccentricity between the axes: at the root or lobe that stands nearest there.
void add_dimensions(const design_params& design, const pair_turn& turn, const length_unit& unit,
                    std::int16_t language, const view_box& box, const sight_metrics& metrics,
                    sight_drawing& drawing);

/// The one of `count` directions, `first_deg` and every 360 / count degrees on, that is nearest to
/// another, degrees.
double nearest_direction(double first_deg, int count, double wanted_deg);

}  // namespace kvt
