#include "ui/parts/print_dialog.hpp"

#include "ui/shell/qt_text.hpp"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kvt {

bool ask_how_to_print(QPrinter& printer, const print_request& request, print_offers offers,
                      QWidget* parent) {
    const bool has_printer = !QPrinterInfo::availablePrinterNames().isEmpty();
    printer.setDocName(qt_text(request.document));
    if (!has_printer) {
        printer.setOutputFileName(qt_text(request.file_without_printer));
    }
    QPrintDialog dialog(&printer, parent);
    if (offers == print_offers::whole_document) {
        dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
        dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
        dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
        dialog.setOption(QAbstractPrintDialog::PrintToFile, !has_printer);
    }
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace kvt
