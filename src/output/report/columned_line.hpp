// columned_line: a line of the printed report where every character is as wide as a column.
// Layout: docs/file-formats.md, "Printed report".
#pragma once

#include "core/report_printer.hpp"

#include <initializer_list>
#include <string>

namespace kvt {

/// The column in which an item begins when the line so far ends in column `last`, 0 for an empty
/// line: its own, or the second one behind `last`.
int item_column(const report_item& item, int last);

/// The items in their columns, UTF-8, blanks between them. An empty text leaves nothing behind; a
/// control character, which a path can hold, is written as "?".
std::string columned_line(std::initializer_list<report_item> items);

}  // namespace kvt
