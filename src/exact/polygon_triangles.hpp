// polygon_triangles: a simple polygon cut into triangles.
// Source: docs/formulas/written_files.md, "Meshes".
#pragma once

#include "geometry/point2.hpp"

#include <array>
#include <cstdint>
#include <vector>

namespace kvt {

using corner_triple = std::array<std::uint32_t, 3>;

/// Cuts ear after ear off a polygon that runs counter-clockwise and does not cross itself; its
/// corners are indices of points. Answers corners - 2 triangles, counter-clockwise too. An ear is a
/// corner to the left whose triangle holds no other corner of the polygon.
std::vector<corner_triple> triangles_of(const std::vector<point2>& points,
                                        std::vector<std::uint32_t> polygon);

}  // namespace kvt
