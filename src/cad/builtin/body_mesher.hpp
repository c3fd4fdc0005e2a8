// body_mesher: the surface of a solid as triangles that share their corners.
// Source: docs/formulas/solid_models.md, "Meshes".
#pragma once

#include "cad/builtin/solid_modeller.hpp"
#include "geometry/body_mesh.hpp"

namespace kvt::builtin {

/// How far the triangles may stray from the surface.
struct mesh_fineness {
    double deflection;  ///< share of the body's largest extent
    double angle;       ///< between neighbouring pieces of a curve, radians
};
/// What a picture needs, and what a printed part does that turns in another with little play.
inline constexpr mesh_fineness SHOWN{0.001, 0.2};
inline constexpr mesh_fineness PRINTED{0.0001, 0.1};

/// Corners are joined by the kernel's own edges, not by their distance, so that every side belongs
/// to exactly two triangles.
body_mesh mesh_of(const body& one, const mesh_fineness& fineness);
/// One polyline of the sampled points, at z = 0.
body_mesh mesh_of(const wire& one);

}  // namespace kvt::builtin
