#include "ui/parts/printed_file.hpp"

#include <QFileDialog>
#include <QPrinter>

namespace kvt {

/// The system's print dialog knows no files but those of its printers.
bool ask_for_printed_file(QPrinter& printer, print_offers /*offers*/, QWidget* parent) {
    const QString file =
        QFileDialog::getSaveFileName(parent, printer.docName(), printer.outputFileName(), "*.pdf");
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return !file.isEmpty();
}

}  // namespace kvt
