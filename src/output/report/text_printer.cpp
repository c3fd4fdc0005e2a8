#include "output/report/text_printer.hpp"

#include "output/report/columned_line.hpp"

namespace kvt {

void text_printer::line(std::initializer_list<report_item> items) {
    lines_.push_back(columned_line(items));
}

}  // namespace kvt
