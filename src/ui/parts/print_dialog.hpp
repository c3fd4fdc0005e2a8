// print_dialog: the system's print dialog, of a chart and of the printed report.
#pragma once

#include "core/printer_chooser.hpp"

class QPrinter;
class QWidget;

namespace kvt {

/// What the dialog offers beside the printers.
enum class print_offers {
    everything,      ///< pages, selection, a file
    whole_document,  ///< no pages and no selection; a file only where the system has no printer
};

/// Asks how to print; false when that is cancelled. Where the system has no printer it is printed
/// into a file, and that of the request is proposed.
bool ask_how_to_print(QPrinter& printer, const print_request& request, print_offers offers,
                      QWidget* parent);

/// The system's dialog for its printers, or for a file with them.
bool show_print_dialog(QPrinter& printer, print_offers offers, bool offers_file, QWidget* parent);

}  // namespace kvt
