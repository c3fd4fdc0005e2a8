// Tests of the system's print dialog: what it offers, and the file where there is no printer.
#include "ui/parts/print_dialog.hpp"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// The options of the dialog, which is cancelled.
QAbstractPrintDialog::PrintDialogOptions offered(QPrinter& printer, print_offers offers) {
    QAbstractPrintDialog::PrintDialogOptions options;
    QTimer::singleShot(0, qApp, [&options] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        options = dialog->options();
        dialog->reject();
    });
    EXPECT_FALSE(ask_how_to_print(printer, {"pump", "/tmp/pump.pdf"}, offers, nullptr));
    return options;
}

bool has_printer() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

TEST(print_dialog, of_a_whole_document_offers_no_part_of_it) {
    QPrinter printer;
    const auto options = offered(printer, print_offers::whole_document);
    EXPECT_FALSE(options & QAbstractPrintDialog::PrintPageRange);
    EXPECT_FALSE(options & QAbstractPrintDialog::PrintSelection);
    EXPECT_EQ(options.testFlag(QAbstractPrintDialog::PrintToFile), !has_printer());
}

TEST(print_dialog, of_everything_offers_a_file) {
    QPrinter printer;
    EXPECT_TRUE(offered(printer, print_offers::everything) & QAbstractPrintDialog::PrintToFile);
}

TEST(print_dialog, proposes_the_file_where_there_is_no_printer) {
    QPrinter printer;
    offered(printer, print_offers::whole_document);
    EXPECT_EQ(printer.docName(), "pump");
    EXPECT_EQ(printer.outputFileName(), has_printer() ? "" : "/tmp/pump.pdf");
}

}  // namespace
}  // namespace kvt
