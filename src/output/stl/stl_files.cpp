#include "output/stl/stl_files.hpp"

#include "exact/section_mesh.hpp"

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr std::size_t HEAD_BYTES = 80;
constexpr std::size_t TRIANGLE_BYTES = 50;

/// The lowest byte first.
void append_bytes(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
}

void append_real(std::string& bytes, double value) {
    append_bytes(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(value)), 4);
}

void append_point(std::string& bytes, const point3& point) {
    append_real(bytes, point.x);
    append_real(bytes, point.y);
    append_real(bytes, point.z);
}

point3 normal_of(const point3& a, const point3& b, const point3& c) {
    const point3 u = {b.x - a.x, b.y - a.y, b.z - a.z};
    const point3 v = {c.x - a.x, c.y - a.y, c.z - a.z};
    const point3 n = {u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
    const double length = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
    return length == 0.0 ? point3{} : point3{n.x / length, n.y / length, n.z / length};
}

void append_triangles(std::string& bytes, const body_mesh& mesh) {
    for (const auto& [a, b, c] : mesh.triangles) {
        append_point(bytes, normal_of(mesh.points[a], mesh.points[b], mesh.points[c]));
        for (const std::uint32_t corner : {a, b, c}) {
            append_point(bytes, mesh.points[corner]);
        }
        append_bytes(bytes, 0, 2);
    }
}

}  // namespace

void write_stl(std::string_view name, const std::vector<body_mesh>& meshes, text_lines& out) {
    std::size_t count = 0;
    for (const body_mesh& mesh : meshes) {
        count += mesh.triangles.size();
    }
    // A head that began with "solid" would be taken for that of a text.
    std::string bytes = "Kavetta, " + std::string(name) + ", mm";
    bytes.resize(HEAD_BYTES, ' ');
    bytes.reserve(HEAD_BYTES + 4 + count * TRIANGLE_BYTES);
    append_bytes(bytes, static_cast<std::uint32_t>(count), 4);
    for (const body_mesh& mesh : meshes) {
        append_triangles(bytes, mesh);
    }
    out.raw_part(bytes);  // a line that nothing ends: its bytes stay as they are
}

void write_stl_inner(const file_source& source, text_lines& out) {
    write_stl("inner rotor", {inner_rotor_mesh(source.design, source.chord_error_mm)}, out);
}

void write_stl_outer(const file_source& source, text_lines& out) {
    write_stl("outer rotor", {outer_rotor_mesh(source.design, source.chord_error_mm)}, out);
}

void write_stl_ports(const file_source& source, text_lines& out) {
    std::vector<body_mesh> meshes;
    for (const pump_body& body : porting_bodies(source.design, source.ports, source.boxes)) {
        meshes.push_back(section_mesh(body, source.chord_error_mm));
    }
    write_stl("ports", meshes, out);
}

}  // namespace kvt
