// export_request: which files of a design are wanted, and what they are written with.
#pragma once

#include "app/stages/batch_run.hpp"
#include "output/written_files.hpp"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kvt {

struct export_request {
    design_source source;
    std::filesystem::path folder;
    std::map<file_group, std::vector<std::string>> chosen;  ///< names of files, or "all"
    std::set<file_group> flagged;                           ///< groups whose files are written, too
    std::string resolution = "0.0001";                      ///< of the CNC files
    std::string tool, groove_tool;  ///< diameters as a user would type them; empty: none
    bool clockwise = false;         ///< the X/Y files of the inner rotor
    std::string date;               ///< that files carry; empty: today's
    bool workbook = false;          ///< perf.xlsx
    char decimal_mark = '.';        ///< of the performance data files
    double chord_error_mm = DEFAULT_CHORD_ERROR_MM;  ///< of the STL files
    bool only_chosen = false;                        ///< nothing but what was asked for
    bool force = false;  ///< zeros of a performance that was not calculated are written

    /// Whether a file was asked for by its name, or by the flag of its group.
    bool names(const written_file& file) const;
    /// Whether a file shall be written. Without a choice everything that is chosen by name is.
    bool wants(const written_file& file) const;
    /// Whether something is written that Calculate Performance works out.
    bool wants_performance() const;
};

// Each check answers what is wrong with a text, or nothing.

std::string diameter_problem(const std::string& text);
/// 0.01 to 0.000001, the resolutions of the CNC output dialog.
std::string resolution_problem(const std::string& text);
/// 0.00001 to 1 mm.
std::string chord_error_problem(const std::string& text);

}  // namespace kvt
