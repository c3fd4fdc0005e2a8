// The STL files: binary, millimetres, straight from the profiles.
// Source: docs/file-formats.md, "STL files (`.stl`)".
#pragma once

#include "base/text_file.hpp"
#include "geometry/body_mesh.hpp"
#include "output/file_source.hpp"

namespace kvt {

/// Appends the bytes of a file with the triangles of all meshes.
void write_stl(std::string_view name, const std::vector<body_mesh>& meshes, text_lines& out);

/// Within file_source::chord_error_mm of the contours. Each appends a whole file, or throws
/// run_time_error for a design that has no such body and appends nothing.
void write_stl_inner(const file_source& source, text_lines& out);
void write_stl_outer(const file_source& source, text_lines& out);
/// Every body that the ports have.
void write_stl_ports(const file_source& source, text_lines& out);

}  // namespace kvt
