#include "ui/parts/print_dialog.hpp"

#include "ui/parts/printed_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kvt {

namespace {

void offer_no_part(QPrintDialog& dialog) {
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
}

}  // namespace

bool show_print_dialog(QPrinter& printer, print_offers offers, bool offers_file, QWidget* parent) {
    QPrintDialog dialog(&printer, parent);
    if (offers == print_offers::whole_document) {
        offer_no_part(dialog);
        dialog.setOption(QAbstractPrintDialog::PrintToFile, offers_file);
    }
    return dialog.exec() == QDialog::Accepted;
}

bool ask_how_to_print(QPrinter& printer, const print_request& request, print_offers offers,
                      QWidget* parent) {
    printer.setDocName(qt_text(request.document));
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
        return show_print_dialog(printer, offers, false, parent);
    }
    printer.setOutputFileName(qt_text(request.file_without_printer));
    return ask_for_printed_file(printer, offers, parent);
}

}  // namespace kvt
