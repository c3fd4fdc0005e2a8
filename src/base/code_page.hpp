// The 8-bit code page (Windows-1252) of all files, both ways. Inside the program texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

/// UTF-8 text of code page bytes. The five bytes without a character (81, 8D, 8F, 90, 9D) become
/// the code point of the same number, so that all 256 byte values survive a round trip.
std::string utf8_of_code_page(std::string_view bytes);

/// Code page bytes of a UTF-8 text; a character that the code page does not hold, or a broken
/// sequence, becomes "?".
std::string code_page_of_utf8(std::string_view text);

/// True when every character of the UTF-8 text can be written to a file and read back.
bool fits_code_page(std::string_view text);

}  // namespace kvt
