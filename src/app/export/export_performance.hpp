// export_performance: what is written of the performance: the data files and the workbook.
#pragma once

#include "app/export/export_folder.hpp"
#include "app/export/export_request.hpp"

namespace kvt {

struct program;

/// Writes what was asked for. Without whole results every one of these files is refused with a
/// note; with --force they are written, and all results are 0.
void export_performance(program& kavetta, const export_request& request, export_folder& folder);

}  // namespace kvt
