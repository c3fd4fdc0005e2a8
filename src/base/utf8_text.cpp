#include "base/utf8_text.hpp"

#include <algorithm>

namespace kvt {

namespace {

bool continues_character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::size_t character_count(std::string_view utf8) {
    return utf8.size() - static_cast<std::size_t>(std::ranges::count_if(utf8, continues_character));
}

void drop_last_character(std::string& utf8) {
    while (!utf8.empty() && continues_character(utf8.back())) {
        utf8.pop_back();
    }
    if (!utf8.empty()) {
        utf8.pop_back();
    }
}

}  // namespace kvt
