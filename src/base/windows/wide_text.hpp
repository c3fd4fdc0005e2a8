// wide_text: texts in the form in which this system's own calls take them, UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

/// What is no UTF-8 becomes the replacement character.
std::wstring wide_of_utf8(std::string_view text);
std::string utf8_of_wide(std::wstring_view text);

}  // namespace kvt
