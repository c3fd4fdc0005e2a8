// Rounding of a decimal text, digit by digit.
#include "core/fixed_number.hpp"

#include "core/checked_math.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <string_view>

namespace kvt {

namespace {

/// Significant digits of the text that is rounded.
constexpr int SIGNIFICANT_DIGITS = 15;

/// 15 digits and the power of ten of the first one.
struct fifteen_digits {
    std::array<char, SIGNIFICANT_DIGITS> digits{};
    int exponent = 0;
};

fifteen_digits digits_of(double magnitude) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, SIGNIFICANT_DIGITS - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    fifteen_digits parts;
    parts.digits[0] = text[0];
    std::copy_n(text.begin() + 2, SIGNIFICANT_DIGITS - 1, parts.digits.begin() + 1);
    const std::size_t sign = text.find('e') + 1;
    std::from_chars(text.data() + sign + 1, text.data() + text.size(), parts.exponent);
    parts.exponent = text[sign] == '-' ? -parts.exponent : parts.exponent;
    return parts;
}

/// The digits down to 10^-decimals as they stand, with a 0 in front that a carry can use.
std::string kept_digits(const fifteen_digits& parts, int decimals) {
    std::string kept = "0";
    for (int power = std::max(parts.exponent, 0); power >= -decimals; --power) {
        const int place = parts.exponent - power;
        kept += place >= 0 && place < SIGNIFICANT_DIGITS ? parts.digits[static_cast<std::size_t>(place)] : '0';
    }
    return kept;
}

/// The digit that decides the rounding: 5 and above rounds away from zero.
bool rounds_up(const fifteen_digits& parts, int decimals) {
    const int place = parts.exponent + decimals + 1;
    return place >= 0 && place < SIGNIFICANT_DIGITS && parts.digits[static_cast<std::size_t>(place)] >= '5';
}

void add_one(std::string& digits) {
    std::size_t at = digits.size() - 1;
    while (digits[at] == '9') {
        digits[at] = '0';
        --at;
    }
    ++digits[at];
}

}  // namespace

std::string fixed_number(double value, int decimals) {
    assert(decimals >= 0 && decimals <= SIGNIFICANT_DIGITS);
    const fifteen_digits parts = digits_of(std::abs(checked_finite(value)));
    std::string digits = kept_digits(parts, decimals);
    if (rounds_up(parts, decimals)) {
        add_one(digits);
    }
    const std::size_t whole = digits.size() - static_cast<std::size_t>(decimals);
    const std::size_t first = digits[0] == '0' && whole > 1 ? 1 : 0;
    const bool negative = value < 0.0 && digits.find_first_not_of('0') != std::string::npos;
    std::string text = (negative ? "-" : "") + digits.substr(first, whole - first);
    return decimals == 0 ? text : text + "." + digits.substr(whole);
}

}  // namespace kvt
