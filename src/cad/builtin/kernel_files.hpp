// kernel_files: bodies as the files that the kernel writes itself, in memory. Lengths mm.
// Source: docs/file-formats.md, "Solid models".
#pragma once

#include "cad/builtin/saved_body.hpp"

#include <string>
#include <vector>

namespace kvt::builtin {

/// STEP AP214: a product a body with its name and colour. Throws automation_error when the kernel
/// can't write it, run_time_error when the system can't.
std::string step_bytes(const std::vector<saved_body>& bodies);
/// The kernel's own format: a compound of the shapes in their order.
std::string brep_bytes(const std::vector<saved_body>& bodies);

}  // namespace kvt::builtin
