// The lenient and the strict reading of numbers, the 15-digit text of a double, the blanks of a
// printed integer.
#include "base/number_text.hpp"

#include "base/checked_math.hpp"
#include "base/fifteen_digits.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace kvt {

namespace {

/// Significant digits of the text of a single-precision number.
constexpr int SINGLE_DIGITS = 7;
/// Powers of ten of the first digit outside which a text is written with an exponent.
constexpr int LOWEST_FIXED_EXPONENT = -4;
constexpr int LOWEST_LARGE_EXPONENT = 15;

bool is_blank(char c) {
    return c == ' ' || c == '\t';
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t end_of_blanks(std::string_view text, std::size_t at) {
    while (at < text.size() && is_blank(text[at])) {
        ++at;
    }
    return at;
}

std::size_t end_of_digits(std::string_view text, std::size_t at) {
    while (at < text.size() && is_digit(text[at])) {
        ++at;
    }
    return at;
}

/// Length of the exponent that begins at `at`: E or e, an optional sign, digits. 0 when the digits
/// are missing.
std::size_t exponent_length(std::string_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != 'E' && text[at] != 'e')) {
        return 0;
    }
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) {
        ++digits;
    }
    const std::size_t end = end_of_digits(text, digits);
    return end == digits ? 0 : end - at;
}

/// The longest leading part that is a decimal number: sign, digits with one point, exponent. Empty
/// when there is no digit in front of the exponent.
std::string_view leading_number(std::string_view text) {
    std::size_t at = 0;
    if (!text.empty() && (text[0] == '+' || text[0] == '-')) {
        ++at;
    }
    const std::size_t first_digit = at;
    at = end_of_digits(text, at);
    std::size_t digit_count = at - first_digit;
    if (at < text.size() && text[at] == '.') {
        const std::size_t end = end_of_digits(text, at + 1);
        digit_count += end - (at + 1);
        at = end;
    }
    if (digit_count == 0) {
        return {};
    }
    return text.substr(0, at + exponent_length(text, at));
}

/// The number after the E of a scanned number; saturates far outside the range of a double.
std::int64_t written_exponent(std::string_view digits) {
    constexpr std::int64_t FAR_OUTSIDE = 1'000'000'000'000;
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    std::int64_t exponent = 0;
    for (const char digit : digits) {
        exponent = std::min(exponent * 10 + (digit - '0'), FAR_OUTSIDE);
    }
    return negative ? -exponent : exponent;
}

/// Whether a scanned number that no double holds is too large rather than too near to zero: its
/// first digit other than 0 then stands before the point once the exponent has moved it.
bool is_above_range(std::string_view number) {
    const std::size_t e = std::min(number.find_first_of("Ee"), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::int64_t places = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    const std::int64_t exponent = e < number.size() ? written_exponent(number.substr(e + 1)) : 0;
    return first < mantissa.size() && places + exponent > 0;
}

/// The value of a text that leading_number has scanned whole.
double scanned_value(std::string_view number) {
    if (number.starts_with('+')) {
        number.remove_prefix(1);
    }
    double value = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    const bool out_of_range = result.ec == std::errc::result_out_of_range || std::isinf(value);
    if (!out_of_range) {
        return value;
    }
    if (is_above_range(number)) {
        throw run_time_error(failure::overflow, "number " + std::string(number));
    }
    return 0.0;
}

/// The seven digits of a single-precision number; the rest are zeros.
fifteen_digits seven_digits_of(double magnitude) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, SINGLE_DIGITS - 1)
                         .ptr;
    double rounded = 0.0;
    std::from_chars(buffer.data(), end, rounded);
    return fifteen_digits_of(rounded);
}

/// Digits with a point behind the first `whole_count`; no point when nothing follows it.
void append_with_point(std::string& text, std::string_view digits, std::size_t whole_count) {
    if (digits.size() <= whole_count) {
        text += digits;
        text.append(whole_count - digits.size(), '0');
        return;
    }
    text += digits.substr(0, whole_count);
    text += '.';
    text += digits.substr(whole_count);
}

/// "E-05", "E+15", "E+100": the sign always, two digits at least.
std::string exponent_text(int exponent) {
    const std::string digits = std::to_string(std::abs(exponent));
    return (exponent < 0 ? "E-" : "E+") + std::string(digits.size() < 2 ? 1 : 0, '0') + digits;
}

/// The digits behind a sign, which a value of zeros only never has.
std::string laid_out(double value, const fifteen_digits& parts, std::string_view positive_sign) {
    constexpr std::size_t LONGEST = 24;
    std::string text;
    text.reserve(LONGEST);
    text += value < 0.0 ? "-" : positive_sign;
    if (parts.exponent < LOWEST_FIXED_EXPONENT || parts.exponent >= LOWEST_LARGE_EXPONENT) {
        append_with_point(text, parts.significant(), 1);
        text += exponent_text(parts.exponent);
    } else if (parts.exponent < 0) {
        text += "0.";
        text.append(static_cast<std::size_t>(-parts.exponent - 1), '0');
        text += parts.significant();
    } else {
        append_with_point(text, parts.significant(), static_cast<std::size_t>(parts.exponent) + 1);
    }
    return text;
}

}  // namespace

double val(std::string_view text) {
    const std::string_view number = leading_number(text.substr(end_of_blanks(text, 0)));
    return number.empty() ? 0.0 : scanned_value(number);
}

double number_of_text(std::string_view text) {
    const std::size_t start = end_of_blanks(text, 0);
    const std::string_view number = leading_number(text.substr(start));
    if (number.empty() || end_of_blanks(text, start + number.size()) != text.size()) {
        throw run_time_error(failure::type_mismatch,
                             "\"" + std::string(text) + "\" is not a number");
    }
    return scanned_value(number);
}

std::int32_t integer_of_text(std::string_view text) {
    return to_int32(number_of_text(text));
}

std::int16_t integer16_of_text(std::string_view text) {
    return to_int16(number_of_text(text));
}

std::string number_text(double value) {
    return laid_out(value, fifteen_digits_of(std::abs(checked_finite(value))), "");
}

std::string str(double value) {
    const std::string text = number_text(value);
    return text.starts_with('-') ? text : " " + text;
}

std::string print_form(std::int64_t value) {
    return (value < 0 ? "" : " ") + std::to_string(value) + " ";
}

std::string print_form_single(float value) {
    const auto wide = checked_finite(static_cast<double>(value));
    return laid_out(wide, seven_digits_of(std::abs(wide)), " ") + " ";
}

std::string commas_to_points(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), ',', '.');
    return result;
}

}  // namespace kvt
