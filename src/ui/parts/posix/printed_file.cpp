#include "ui/parts/printed_file.hpp"

namespace kvt {

bool ask_for_printed_file(QPrinter& printer, print_offers offers, QWidget* parent) {
    return show_print_dialog(printer, offers, true, parent);
}

}  // namespace kvt
