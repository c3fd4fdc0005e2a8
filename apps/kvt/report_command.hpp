// report_command: calculate a design and write the printed report, without a printer.
#pragma once

#include "app/stages/batch_run.hpp"

#include <iosfwd>
#include <string>

namespace kvt {

struct report_request {
    design_source source;
    std::string file;  ///< FILE.txt or FILE.pdf; empty: the text on standard output
    calc_stage last = calc_stage::performance;
    std::string date;  ///< "YYYY-MM-DD" or "YYYY-MM-DDTHH:MM:SS"; empty: now
};

/// Runs the design and writes its report, however far the run came; nothing for a project that
/// can't be read. Text is UTF-8 with LF on standard output, in the code page with CR LF in a file.
/// Messages go to `err`. Answers the exit status; a file that can't be written is a refusal.
int report_design(const report_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
