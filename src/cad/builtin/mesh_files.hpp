// mesh_files: meshes as the files that printers of parts read, in memory. Lengths mm. Curves have
// no surface and are left out. Source: docs/file-formats.md, "Solid models".
#pragma once

#include "cad/builtin/saved_body.hpp"
#include "geometry/body_mesh.hpp"

#include <string>
#include <vector>

namespace kvt::builtin {

struct saved_mesh {
    std::string name;  ///< UTF-8
    body_role role = body_role::other;
    body_mesh mesh;
};

/// The surfaces of the solids, as fine as a printed part needs.
std::vector<saved_mesh> printed_meshes(const std::vector<saved_body>& bodies);

/// Binary STL: the triangles of all bodies one after the other; the format has no names.
std::string stl_bytes(const std::vector<saved_mesh>& meshes);
/// 3MF: an object a body with its name and colour. Throws run_time_error when it can't be packed.
std::string three_mf_bytes(const std::vector<saved_mesh>& meshes);

}  // namespace kvt::builtin
