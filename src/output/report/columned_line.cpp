#include "output/report/columned_line.hpp"

#include "base/utf8_text.hpp"

#include <algorithm>
#include <cstddef>

namespace kvt {

namespace {

bool is_control(char c) {
    return static_cast<unsigned char>(c) < 0x20U;
}

}  // namespace

int item_column(const report_item& item, int last) {
    return last == 0 ? item.column : std::max(item.column, last + 2);
}

std::string columned_line(std::initializer_list<report_item> items) {
    std::string line;
    for (const report_item& item : items) {
        if (item.text.empty()) {
            continue;
        }
        const int last = static_cast<int>(character_count(line));
        line.append(static_cast<std::size_t>(item_column(item, last) - last - 1), ' ');
        line += item.text;
    }
    std::ranges::replace_if(line, is_control, '?');
    return line;
}

}  // namespace kvt
