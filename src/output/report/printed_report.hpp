// printed_report: the inputs and main results of a project as one text, from the boxes and captions
// as they stand. Rows: docs/file-formats.md, "Printed report".
#pragma once

#include "core/app_state.hpp"
#include "core/captions.hpp"
#include "core/entries.hpp"
#include "core/report_printer.hpp"
#include "performance/perf_results.hpp"

#include <string>

namespace kvt {

/// What a report is printed from; nothing of it is changed.
struct report_source {
    const entries& boxes;
    const labels& shown;
    const kvt::captions& captions;
    const app_state& state;
    const perf_results& results;
    bool has_results = false;    ///< Calculate Performance ran to its end for this project
    bool shows_results = false;  ///< perf_res is loaded, so its labels hold something
    std::string title;           ///< "Kavetta V2021"
    std::string date, time;      ///< in the form in which they shall stand there
};

/// Title, date and time in 20 points, then the rows of the language in 12 points: label in column
/// 5, value in column 40, a unit in column 50. A language that is neither English nor German has no
/// rows. Without results every result is empty. Throws overflow for a result that is no number; the
/// lines before it stand, and the document is not ended.
void print_report(const report_source& source, report_printer& printer);

}  // namespace kvt
