#include "output/step/exact_step_entities.hpp"

#include "base/plain_number.hpp"
#include "output/step/step_entities.hpp"

#include <cstdint>

namespace kvt {

namespace {

constexpr std::string_view HEX = "0123456789ABCDEF";

std::string hex_digits(std::uint32_t code, int count) {
    std::string text;
    for (int shift = 4 * (count - 1); shift >= 0; shift -= 4) {
        text += HEX[(code >> shift) & 0xFU];
    }
    return text;
}

/// The character that begins at text[at], and where the next one begins.
struct decoded {
    std::uint32_t code;
    std::size_t next;
};

decoded character_at(std::string_view utf8, std::size_t at) {
    const auto byte = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const std::uint32_t lead = byte(at);
    const std::size_t more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    std::uint32_t code = more == 0 ? lead : lead & (0x3FU >> more);
    std::size_t next = at + 1;
    for (; next < utf8.size() && next <= at + more; ++next) {
        code = code << 6U | (byte(next) & 0x3FU);
    }
    return {code, next};
}

std::string encoded(std::uint32_t code) {
    if (code == '\'' || code == '\\') {
        return std::string(2, static_cast<char>(code));
    }
    if (code < ' ' || code == 0x7F) {
        return "";
    }
    if (code < 0x80) {
        return {static_cast<char>(code)};
    }
    return code <= 0xFFFF ? "\\X2\\" + hex_digits(code, 4) + "\\X0\\"
                          : "\\X4\\" + hex_digits(code, 8) + "\\X0\\";
}

}  // namespace

int exact_step_entities::add(std::string_view entity) {
    write_reference(out_, ++last_);
    out_.raw_part("=");
    out_.raw_part(entity);
    out_.raw_line(";");
    return last_;
}

std::string step_ref(int number) {
    return "#" + std::to_string(number);
}

std::string step_refs(const std::vector<int>& numbers) {
    std::string text = "(";
    for (const int number : numbers) {
        text += text.size() > 1 ? "," : "";
        text += step_ref(number);
    }
    return text + ")";
}

std::string step_real(double value) {
    std::string text = plain_number_text(value);
    if (text.find('.') == std::string::npos) {
        text += '.';
    }
    return text;
}

std::string step_string(std::string_view utf8) {
    std::string text = "'";
    for (std::size_t at = 0; at < utf8.size();) {
        const decoded character = character_at(utf8, at);
        text += encoded(character.code);
        at = character.next;
    }
    return text + "'";
}

}  // namespace kvt
