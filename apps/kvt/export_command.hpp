// export_command: the files that a design turns into, written to one folder.
#pragma once

#include "kvt/batch_run.hpp"

#include <filesystem>
#include <iosfwd>

namespace kvt {

/// Opens the project, types the entries, and writes the project as Save As would, DIR/<name of the input>.KVT with
/// that path as its first line. The folder is created when it is missing; a file of that name is replaced. The paths
/// of the written files go to `out`, one a line. Answers the exit status.
int export_design(const design_source& source, const std::filesystem::path& folder, std::ostream& out,
                  std::ostream& err);

}  // namespace kvt
