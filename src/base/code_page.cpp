// Windows-1252 and UTF-8: the table of the 32 bytes that differ from Latin-1, and both directions.
#include "base/code_page.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>

namespace kvt {

namespace {

/// The characters of bytes 80 to 9F; every other byte is the code point of the same number.
constexpr char32_t FIRST_OF_TABLE = 0x80;
constexpr std::array<char32_t, 32> TABLE = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

bool is_in_table(char32_t byte) {
    return byte >= FIRST_OF_TABLE && byte < FIRST_OF_TABLE + TABLE.size();
}

char32_t character_of_byte(char byte) {
    const char32_t number = static_cast<unsigned char>(byte);
    return is_in_table(number) ? TABLE[number - FIRST_OF_TABLE] : number;
}

std::optional<char> byte_of_character(char32_t character) {
    if (character <= 0xFF && !is_in_table(character)) {
        return static_cast<char>(character);
    }
    const auto found = std::find(TABLE.begin(), TABLE.end(), character);
    if (found == TABLE.end()) {
        return std::nullopt;
    }
    return static_cast<char>(FIRST_OF_TABLE +
                             static_cast<char32_t>(std::distance(TABLE.begin(), found)));
}

/// Every character of the code page lies below 10000 hexadecimal: one to three bytes.
void append_utf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

/// One decoded character, or nothing for a broken sequence, and the number of bytes it takes.
struct decoded {
    std::optional<char32_t> character;
    std::size_t length = 1;
};

/// The form of a sequence by its first byte: its length, the bits of that byte, the lowest
/// character it may hold.
struct sequence_form {
    std::size_t length;
    char32_t bits;
    char32_t lowest;
};

std::optional<sequence_form> form_of_lead(unsigned char lead) {
    if (lead < 0x80) {
        return sequence_form{1, lead, 0};
    }
    if (lead >= 0xC0 && lead < 0xE0) {
        return sequence_form{2, lead & 0x1Fu, 0x80};
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return sequence_form{3, lead & 0x0Fu, 0x800};
    }
    if (lead >= 0xF0 && lead < 0xF8) {
        return sequence_form{4, lead & 0x07u, 0x10000};
    }
    return std::nullopt;
}

/// The character at the start of a text that is not empty. A broken sequence ends before the first
/// byte that does not continue it. Too long a form, a surrogate and a number above 10FFFF are
/// broken too.
decoded first_character(std::string_view text) {
    const auto form = form_of_lead(static_cast<unsigned char>(text[0]));
    if (!form) {
        return {};
    }
    char32_t character = form->bits;
    for (std::size_t at = 1; at < form->length; ++at) {
        if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) {
            return {std::nullopt, at};
        }
        character = (character << 6) | (static_cast<unsigned char>(text[at]) & 0x3Fu);
    }
    const bool is_surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < form->lowest || character > 0x10FFFF || is_surrogate) {
        return {std::nullopt, form->length};
    }
    return {character, form->length};
}

/// The code page byte of the first character, or nothing; the text loses that character.
std::optional<char> take_byte(std::string_view& text) {
    const decoded first = first_character(text);
    text.remove_prefix(first.length);
    return first.character ? byte_of_character(*first.character) : std::nullopt;
}

}  // namespace

std::string utf8_of_code_page(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        append_utf8(text, character_of_byte(byte));
    }
    return text;
}

std::string code_page_of_utf8(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        bytes += take_byte(text).value_or('?');
    }
    return bytes;
}

bool fits_code_page(std::string_view text) {
    while (!text.empty()) {
        if (!take_byte(text)) {
            return false;
        }
    }
    return true;
}

}  // namespace kvt
