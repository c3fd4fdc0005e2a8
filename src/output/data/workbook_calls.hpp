// workbook_calls: the plan of the workbook carried out in the spreadsheet program itself. Source:
// docs/file-formats.md, "Workbook in Excel".
#pragma once

#include "automation/host.hpp"
#include "output/data/workbook_plan.hpp"

#include <functional>
#include <span>

namespace kvt {

/// Fills a new workbook of the running program, or of a new one, and leaves it open and unsaved
/// before the user. Throws automation_error when a call fails; then the sheets done so far stay,
/// and the screen follows again.
/// sheet_done hears how many sheets are filled, 1 .. 5.
void fill_workbook(automation::host& programs, std::span<const workbook_sheet> plan,
                   const std::function<void(int sheet_count)>& sheet_done = {});

}  // namespace kvt
