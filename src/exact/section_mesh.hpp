// section_mesh: rotors and port bodies as watertight triangles straight from their contours.
// Source: docs/formulas/written_files.md, "Meshes".
#pragma once

#include "exact/pump_bodies.hpp"
#include "geometry/body_mesh.hpp"

namespace kvt {

/// Each: two caps and a wall, whose straight lines lie within a distance of the contours, mm, above
/// 0. No edges. Throws as the contours do.
body_mesh inner_rotor_mesh(const design_params& design, double chord_error);
body_mesh outer_rotor_mesh(const design_params& design, double chord_error);
/// Of a body of arcs and lines without a hole.
body_mesh section_mesh(const pump_body& body, double chord_error);

}  // namespace kvt
