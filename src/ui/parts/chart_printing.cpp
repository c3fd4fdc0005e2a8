#include "ui/parts/chart_printing.hpp"

#include "ui/parts/print_dialog.hpp"
#include "ui/shell/qt_text.hpp"

#include <QPrinter>

namespace kvt {

void ask_and_print(const shown_chart& shown, const QString& file_without_printer, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    const print_request request{shown.chart.title, utf8_text(file_without_printer)};
    if (ask_how_to_print(printer, request, print_offers::everything, parent)) {
        print_chart(shown, printer);
    }
}

}  // namespace kvt
