// performance_files: the results of a performance as files that other programs read: the data files
// and the workbook.
#pragma once

namespace kvt {

class user;
struct program;

namespace automation {
class host;
}

/// The menu entry mnudataperf: once may_write allows it the five data files, each with its save
/// dialog; a cancelled one skips its file. What became of them stands in the status bar.
void save_performance_files(program& kavetta, user& person);

/// The button export_excel: export_workbook with the programs of this machine.
void export_excel(program& kavetta, user& person);

/// Once may_write allows it the workbook: where programs can be driven that of fill_excel, else the
/// save dialog, the file, and the program that the system has for it. When the workbook can't be
/// made or saved, the status bar says why and the user is asked whether to write the data files
/// instead.
void export_workbook(program& kavetta, user& person, automation::host* programs);

/// A new workbook in Excel, which stays open and unsaved. False when a call failed; then the status
/// bar says with which error.
bool fill_excel(program& kavetta, user& person, automation::host& programs);

}  // namespace kvt
