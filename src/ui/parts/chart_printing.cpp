#include "ui/parts/chart_printing.hpp"

#include "ui/shell/qt_text.hpp"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kvt {

void ask_and_print(const shown_chart& shown, const QString& file_without_printer, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(qt_text(shown.chart.title));
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        printer.setOutputFileName(file_without_printer);
    }
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) {
        print_chart(shown, printer);
    }
}

}  // namespace kvt
