// binary_stl: triangles as the bytes of a binary STL file. Lengths mm.
// Source: docs/file-formats.md, "STL files (`.stl`)".
#pragma once

#include "geometry/body_mesh.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// The triangles of all meshes one after the other: 80 bytes that begin with `head`, their number,
/// and for each the normal and three corners as 4-byte reals, and two bytes of 0. A head that began
/// with "solid" would be taken for that of a text.
std::string binary_stl(std::string_view head,
                       const std::vector<std::reference_wrapper<const body_mesh>>& meshes);

}  // namespace kvt
