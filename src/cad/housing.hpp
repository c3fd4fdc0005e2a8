// housing: the pump body around the rotors, with the bore of the outer rotor and the pockets of the
// ports cut out, so that a print of all parts turns by hand. Lengths mm.
// Source: docs/formulas/solid_models.md.
#pragma once

#include "cad/model_outlines.hpp"

#include <vector>

namespace kvt {

/// The three sizes that a person chooses.
struct housing_size {
    double outer_diameter = 0.0;
    double wall = 0.0;   ///< between bore and outside: the bore is outer_diameter - 2 wall wide
    double floor = 0.0;  ///< material under the deepest pocket
};

/// Walls and floor of 5 mm, and a bore that a printed outer rotor of maxdiameter turns in with
/// 0.15 mm of air all round.
housing_size usual_housing(const design_params& design);

/// What is cut out of which cylinder. The rotors run in the bore from z = 0 to `top`, where the
/// housing is open; the pockets of the bodies under the rotors go down from z = 0.
struct housing_plan {
    point2 centre;                   ///< axis of the outer rotor
    double outer_radius = 0.0;       ///< mm
    double bore_radius = 0.0;        ///< mm
    double bottom = 0.0, top = 0.0;  ///< z, mm; top is upper_port_height
    std::vector<port_body> pockets;  ///< those of port_bodies that are lower
};

/// bodies are port_bodies of the design; without any the floor has no pockets.
housing_plan plan_housing(const design_params& design, const std::vector<port_body>& bodies,
                          const housing_size& size);

/// Why there can be no such housing.
enum class housing_problem {
    none,
    bore,    ///< the outer rotor of maxdiameter doesn't fit into the bore
    wall,    ///< no wall is left around the bore
    floor,   ///< no floor
    pocket,  ///< a pocket breaks through the outside
};
housing_problem problem_of(const housing_plan& plan, const housing_size& size,
                           const design_params& design);

}  // namespace kvt
