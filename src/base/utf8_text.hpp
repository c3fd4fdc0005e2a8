// utf8_text: the characters of a UTF-8 text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kvt {

/// Every byte that does not continue a character.
std::size_t character_count(std::string_view utf8);

/// The text without its last character; an empty one stays.
void drop_last_character(std::string& utf8);

}  // namespace kvt
