// The options of `kvt export`.
#pragma once

#include "app/export/export_request.hpp"

namespace CLI {
class App;
}

namespace kvt {

/// Adds the folder, the choice of files and what they are written with. A value that can't be used
/// is a usage error.
void add_export_options(CLI::App& command, export_request& files);

}  // namespace kvt
