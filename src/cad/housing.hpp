// housing: the pump body around the rotors, with the bore of the outer rotor and the pockets of the
// ports cut out, so that a print of all parts turns by hand.
#pragma once

#include "cad/model_outlines.hpp"

#include <vector>

namespace kvt {

/// The entries of the dialog, mm.
struct housing_size {
    double outer_diameter = 0.0;
    double wall = 0.0;   ///< between bore and outside, so the bore is outer_diameter - 2 wall
    double floor = 0.0;  ///< material under the deepest pocket
};

/// What is cut out of which cylinder. The rotors run in the bore from z = 0 to `top`, where the
/// housing is open; the pockets of the bodies under the rotors go down from z = 0.
struct housing_plan {
    point2 centre;                   ///< axis of the outer rotor
    double outer_radius = 0.0;       ///< mm
    double bore_radius = 0.0;        ///< mm
    double bottom = 0.0, top = 0.0;  ///< z, mm; top is upper_port_height
    std::vector<port_body> pockets;  ///< those of port_bodies that are lower
};

}  // namespace kvt
