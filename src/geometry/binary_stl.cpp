#include "geometry/binary_stl.hpp"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace kvt {

namespace {

constexpr std::size_t HEAD_BYTES = 80;
constexpr std::size_t NUMBER_BYTES = 4;
constexpr std::size_t TRIANGLE_BYTES = 50;

/// The lowest byte first.
void append_number(std::string& bytes, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
}

void append_point(std::string& bytes, const point3& at) {
    for (const double number : {at.x, at.y, at.z}) {
        append_number(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(number)));
    }
}

/// Of length 1; 0 for a triangle without area.
point3 normal_of(const point3& a, const point3& b, const point3& c) {
    const point3 normal = cross(b - a, c - a);
    const double length = std::sqrt(dot(normal, normal));
    return length > 0.0 ? point3{normal.x / length, normal.y / length, normal.z / length}
                        : point3{};
}

void append_triangles(std::string& bytes, const body_mesh& mesh) {
    for (const auto& [a, b, c] : mesh.triangles) {
        append_point(bytes, normal_of(mesh.points.at(a), mesh.points.at(b), mesh.points.at(c)));
        for (const std::uint32_t corner : {a, b, c}) {
            append_point(bytes, mesh.points.at(corner));
        }
        bytes.append(2, '\0');  // attributes: none
    }
}

}  // namespace

std::string binary_stl(std::string_view head,
                       const std::vector<std::reference_wrapper<const body_mesh>>& meshes) {
    std::size_t count = 0;
    for (const body_mesh& mesh : meshes) {
        count += mesh.triangles.size();
    }
    std::string bytes(head);
    bytes.resize(HEAD_BYTES, ' ');
    bytes.reserve(HEAD_BYTES + NUMBER_BYTES + count * TRIANGLE_BYTES);
    append_number(bytes, static_cast<std::uint32_t>(count));
    for (const body_mesh& mesh : meshes) {
        append_triangles(bytes, mesh);
    }
    return bytes;
}

}  // namespace kvt
