#include "output/stl/stl_files.hpp"

#include "exact/section_mesh.hpp"
#include "geometry/binary_stl.hpp"

#include <string>
#include <vector>

namespace kvt {

void write_stl(std::string_view name, const std::vector<body_mesh>& meshes, text_lines& out) {
    // A line that nothing ends: its bytes stay as they are.
    out.raw_part(
        binary_stl("Kavetta, " + std::string(name) + ", mm", {meshes.begin(), meshes.end()}));
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
