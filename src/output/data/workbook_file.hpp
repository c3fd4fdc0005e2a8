// workbook_file: the plan of the workbook as the bytes of an .xlsx file. Source:
// docs/file-formats.md, "Workbook (`.xlsx`)".
#pragma once

#include "output/data/workbook_plan.hpp"

#include <functional>
#include <span>
#include <string>

namespace kvt {

/// False where the program is built without libxlsxwriter.
bool has_workbook_files();

/// The file in memory, by libxlsxwriter, which puts it together among the temporary files of the
/// system. Throws path_file_access when that fails, or without the library.
/// sheet_done hears how many sheets are filled, 1 .. 5.
std::string workbook_bytes(std::span<const workbook_sheet> plan,
                           const std::function<void(int sheet_count)>& sheet_done = {});

}  // namespace kvt
