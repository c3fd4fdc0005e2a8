// printer_chooser: the print dialog of the printed report.
#pragma once

#include <memory>
#include <string>

namespace kvt {

class report_printer;

/// What the print dialog shall know. Texts are UTF-8.
struct print_request {
    std::string document;              ///< its name among the jobs of the printer
    std::string file_without_printer;  ///< a path; proposed where the system has no printer
};

class printer_chooser {
  public:
    virtual ~printer_chooser() = default;

    /// The printer that was chosen, ready for the first line; nullptr when the dialog was cancelled
    /// or the printing can't begin.
    virtual std::unique_ptr<report_printer> choose_printer(const print_request& request) = 0;
};

}  // namespace kvt
