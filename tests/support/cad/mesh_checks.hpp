// What must hold for the mesh of a solid.
#pragma once

#include "geometry/body_mesh.hpp"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace kvt {

/// Every side belongs to exactly two triangles, which run through it in opposite directions.
inline bool is_watertight(const body_mesh& mesh) {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> sides, opposite;
    for (const auto& corner : mesh.triangles) {
        for (std::size_t i = 0; i < 3; ++i) {
            const std::uint32_t from = corner[i], to = corner[(i + 1) % 3];
            sides.emplace_back(from, to);
            opposite.emplace_back(to, from);
            if (from == to) {
                return false;
            }
        }
    }
    std::ranges::sort(sides);
    std::ranges::sort(opposite);
    return !sides.empty() && sides == opposite && std::ranges::adjacent_find(sides) == sides.end();
}

/// Volume within the triangles: the sum of a . (b x c) / 6; positive when they are right side out.
inline double mesh_volume(const body_mesh& mesh) {
    double sum = 0.0;
    for (const auto& corner : mesh.triangles) {
        sum += dot(mesh.points.at(corner[0]),
                   cross(mesh.points.at(corner[1]), mesh.points.at(corner[2])));
    }
    return sum / 6.0;
}

}  // namespace kvt
