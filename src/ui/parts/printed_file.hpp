// printed_file: where a system without a printer prints to.
#pragma once

#include "ui/parts/print_dialog.hpp"

namespace kvt {

/// Asks for the file that the printer writes; its present one is proposed. False when that is
/// cancelled. Without a name the dialog would be accepted and nothing printed.
bool ask_for_printed_file(QPrinter& printer, print_offers offers, QWidget* parent);

}  // namespace kvt
