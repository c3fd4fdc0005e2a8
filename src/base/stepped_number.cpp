#include "base/stepped_number.hpp"

#include "base/trimmed.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace kvt {

namespace {

constexpr std::size_t MOST_DIGITS = 15;

bool is_mark(char character) {
    return character == '.' || character == ',';
}

bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

/// A number as its digits without the mark: -2.85 is -285 with two decimals.
struct scaled_number {
    std::int64_t units = 0;
    std::size_t decimals = 0;
    char mark = 0;  ///< 0 without one
};

std::optional<scaled_number> scaled(std::string_view text) {
    text = trimmed(text);
    const bool is_negative = text.starts_with('-');
    if (is_negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    scaled_number number;
    std::size_t digits = 0;
    for (const char character : text) {
        if (is_digit(character) && digits < MOST_DIGITS) {
            number.units = number.units * 10 + (character - '0');
            number.decimals += number.mark != 0 ? 1 : 0;
            ++digits;
        } else if (is_mark(character) && number.mark == 0) {
            number.mark = character;
        } else {
            return std::nullopt;
        }
    }
    if (digits == 0) {
        return std::nullopt;
    }
    number.units = is_negative ? -number.units : number.units;
    return number;
}

std::string text_of(const scaled_number& number) {
    std::string digits = std::to_string(std::abs(number.units));
    if (digits.size() <= number.decimals) {
        digits.insert(0, number.decimals + 1 - digits.size(), '0');
    }
    if (number.decimals > 0) {
        digits.insert(digits.size() - number.decimals, 1, number.mark);
    }
    return (number.units < 0 ? "-" : "") + digits;
}

}  // namespace

std::optional<int> decimals_of(std::string_view text) {
    const std::optional<scaled_number> number = scaled(text);
    return number ? std::optional(static_cast<int>(number->decimals)) : std::nullopt;
}

std::optional<std::string> stepped_number(std::string_view text, int steps, bool may_be_negative) {
    std::optional<scaled_number> number = scaled(text);
    if (!number) {
        return std::nullopt;
    }
    number->units += steps;
    number->units = may_be_negative ? number->units : std::max<std::int64_t>(number->units, 0);
    return text_of(*number);
}

}  // namespace kvt
