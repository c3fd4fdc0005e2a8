// trimmed: texts without what stands around them.
#pragma once

#include <string_view>

namespace kvt {

/// The text from its first to its last character that is not one of the blanks; empty without one.
std::string_view trimmed(std::string_view text, std::string_view blanks = " \t");

}  // namespace kvt
