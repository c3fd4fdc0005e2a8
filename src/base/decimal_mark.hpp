// decimal_mark: numbers for other programs, which read the decimal mark of their system.
#pragma once

#include <string>

namespace kvt {

/// The text of a number (number_text) with the mark in place of its point.
std::string with_decimal_mark(std::string number, char mark);

}  // namespace kvt
