// The fluids of an object library of the simulation package.
// Source: docs/file-formats.md, "Model files of the simulation exchange".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// The names, UTF-8, of the objects whose t_id is 114701, in the order of the file. An object is a
/// line with "object" at its characters 10 to 15.
std::vector<std::string> fluid_names(std::string_view bytes);

}  // namespace kvt
