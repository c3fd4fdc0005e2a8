// A body of an exact STEP file: planes, cylinders and extruded splines between two heights.
// Source: docs/file-formats.md, "Exact STEP files (`.stp`)".
#pragma once

#include "exact/pump_bodies.hpp"
#include "output/step/exact_step_entities.hpp"

#include <vector>

namespace kvt {

/// What all bodies of a file share: entity numbers.
struct step_frame {
    int up = 0, down = 0, along_x = 0;  ///< directions
    int upwards = 0;                    ///< vector of length 1
    int placement = 0;                  ///< of the origin
};

step_frame write_step_frame(exact_step_entities& entities);

/// Writes a body and answers the number of its MANIFOLD_SOLID_BREP.
int write_step_solid(exact_step_entities& entities, const step_frame& frame, const pump_body& body);

}  // namespace kvt
