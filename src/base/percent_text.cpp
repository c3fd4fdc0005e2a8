#include "base/percent_text.hpp"

#include <charconv>
#include <cstddef>

namespace kvt {

namespace {

constexpr std::string_view DIGITS = "0123456789ABCDEF";
constexpr std::size_t CODE_LENGTH = 3;  ///< "%D0"
constexpr int HEXADECIMAL = 16;

bool stays(char c) {
    return c >= ' ' && c <= '~' && c != '%';
}

}  // namespace

std::string percent_text(std::string_view utf8) {
    std::string text;
    for (const char c : utf8) {
        if (stays(c)) {
            text += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            text += {'%', DIGITS[byte / HEXADECIMAL], DIGITS[byte % HEXADECIMAL]};
        }
    }
    return text;
}

std::string text_of_percent(std::string_view text) {
    std::string utf8;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view code = text.substr(at, CODE_LENGTH);
        unsigned char byte = 0;
        const char* end = code.data() + code.size();
        if (code.size() == CODE_LENGTH && code.front() == '%' &&
            std::from_chars(code.data() + 1, end, byte, HEXADECIMAL).ptr == end) {
            utf8 += static_cast<char>(byte);
            at += CODE_LENGTH - 1;
        } else {
            utf8 += text[at];
        }
    }
    return utf8;
}

}  // namespace kvt
