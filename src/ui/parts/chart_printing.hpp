// chart_printing: the print dialog of a chart and its page.
#pragma once

#include "ui/parts/chart_export.hpp"

class QWidget;

namespace kvt {

/// Asks for the printer and prints the chart across a page; a cancelled dialog prints nothing.
/// Where there is no printer the dialog proposes to print into the file. Throws run_time_error
/// (path/file access) when the printing can't begin.
void ask_and_print(const shown_chart& shown, const QString& file_without_printer, QWidget* parent);

}  // namespace kvt
