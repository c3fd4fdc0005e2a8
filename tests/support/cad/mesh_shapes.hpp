// mesh_shapes: small closed bodies as triangles, for tests.
#pragma once

#include "geometry/body_mesh.hpp"
#include "geometry/point2.hpp"

#include <numbers>
#include <vector>

namespace kvt {

/// A regular polygon, counter-clockwise.
inline std::vector<point2> regular_polygon(point2 centre, double radius, std::uint32_t corners) {
    std::vector<point2> outline;
    for (std::uint32_t i = 0; i < corners; ++i) {
        const point2 corner = polar_point(radius, 2.0 * std::numbers::pi * i / corners);
        outline.push_back({centre.x + corner.x, centre.y + corner.y});
    }
    return outline;
}

/// The walls of an outline whose lower points start at an index, with the upper ones behind them,
/// and the edges along both.
inline void add_walls(body_mesh& mesh, std::uint32_t first, std::uint32_t count, bool is_hole) {
    std::vector<std::uint32_t> lower;
    std::vector<std::uint32_t> upper;
    for (std::uint32_t i = 0; i <= count; ++i) {
        lower.push_back(first + i % count);
        upper.push_back(first + count + i % count);
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t from = is_hole ? i + 1 : i;
        const std::uint32_t to = is_hole ? i : i + 1;
        mesh.triangles.push_back({lower[from], lower[to], upper[to]});
        mesh.triangles.push_back({lower[from], upper[to], upper[from]});
    }
    mesh.edges.push_back(lower);
    mesh.edges.push_back(upper);
}

inline void add_outline(body_mesh& mesh, const std::vector<point2>& outline, double z0, double z1) {
    for (const double z : {z0, z1}) {
        for (const point2& point : outline) {
            mesh.points.push_back({point.x, point.y, z});
        }
    }
}

/// A convex outline, counter-clockwise, pushed from one height to another.
inline body_mesh prism_mesh(const std::vector<point2>& outline, double z0, double z1) {
    body_mesh mesh;
    const auto count = static_cast<std::uint32_t>(outline.size());
    add_outline(mesh, outline, z0, z1);
    add_walls(mesh, 0, count, false);
    for (std::uint32_t i = 1; i + 1 < count; ++i) {
        mesh.triangles.push_back({0, i + 1, i});
        mesh.triangles.push_back({count, count + i, count + i + 1});
    }
    return mesh;
}

inline body_mesh box_mesh(const point3& lowest, const point3& highest) {
    body_mesh mesh = prism_mesh({{lowest.x, lowest.y},
                                 {highest.x, lowest.y},
                                 {highest.x, highest.y},
                                 {lowest.x, highest.y}},
                                lowest.z, highest.z);
    for (std::uint32_t i = 0; i < 4; ++i) {
        mesh.edges.push_back({i, i + 4});
    }
    return mesh;
}

/// A prism of regular polygons with a hole of the same number of corners.
inline body_mesh ring_mesh(point2 centre, double outer, double inner, double z0, double z1,
                           std::uint32_t corners) {
    body_mesh mesh;
    add_outline(mesh, regular_polygon(centre, outer, corners), z0, z1);
    add_outline(mesh, regular_polygon(centre, inner, corners), z0, z1);
    add_walls(mesh, 0, corners, false);
    add_walls(mesh, 2 * corners, corners, true);
    for (std::uint32_t i = 0; i < corners; ++i) {
        const std::uint32_t next = (i + 1) % corners;
        const std::uint32_t hole = 2 * corners;
        mesh.triangles.push_back({i, hole + i, hole + next});
        mesh.triangles.push_back({i, hole + next, next});
        mesh.triangles.push_back({corners + i, corners + hole + next, corners + hole + i});
        mesh.triangles.push_back({corners + i, corners + next, corners + hole + next});
    }
    return mesh;
}

}  // namespace kvt
