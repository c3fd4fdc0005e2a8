// excel_command: the performance of a design as a workbook in Excel.
#pragma once

#include "app/stages/batch_run.hpp"
#include "kvt/driven_host.hpp"

#include <iosfwd>

namespace kvt {

struct excel_request {
    design_source source;
    host_request host;
};

/// Calculates the design and fills a new workbook, which stays open. Answers the exit status; a
/// design without performance is refused, and a program that can't be driven is told with the
/// number of its error.
int fill_excel_workbook(const excel_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
