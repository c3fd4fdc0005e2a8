// body_mesh: the surface of a solid as triangles, and its edges as polylines.
#pragma once

#include "geometry/point3.hpp"

#include <array>
#include <cstdint>
#include <vector>

namespace kvt {

/// Indices count `points` from 0. A curve has edges and no triangles.
struct body_mesh {
    /// Every place once, so that neighbouring triangles share their corners. mm
    std::vector<point3> points;
    /// Corners counter-clockwise as seen from outside. Of a solid every side belongs to exactly two
    /// triangles, which run through it in opposite directions.
    std::vector<std::array<std::uint32_t, 3>> triangles;
    /// Polylines; a closed one repeats its first index.
    std::vector<std::vector<std::uint32_t>> edges;
};

}  // namespace kvt
