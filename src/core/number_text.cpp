// The lenient and the strict reading of numbers, the 15-digit text of a double, the blanks of a printed integer.
#include "core/number_text.hpp"

#include "core/checked_math.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace kvt {

namespace {

/// Significant digits of the text of a double.
constexpr int SIGNIFICANT_DIGITS = 15;
/// Those of a single-precision number.
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

/// Length of the exponent that begins at `at`: E or e, an optional sign, digits. 0 when the digits are missing.
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

/// The longest leading part that is a decimal number: sign, digits with one point, exponent. Empty when there is no
/// digit in front of the exponent.
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

/// Whether a scanned number that no double holds is too large rather than too near to zero: its first digit other
/// than 0 then stands before the point once the exponent has moved it.
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

/// The parts of a double's text: up to 15 digits without trailing zeros, and the power of ten of the first one.
struct decimal_digits {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

decimal_digits rounded_digits(double value, int significant_digits = SIGNIFICANT_DIGITS) {
    // Sign, digit, point, 14 digits, e, sign, three exponent digits.
    std::array<char, SIGNIFICANT_DIGITS + 16> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                      std::chars_format::scientific, significant_digits - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    const std::size_t e = text.find('e');
    decimal_digits parts;
    parts.negative = std::signbit(value) && value != 0.0;
    parts.digits = std::string(text.substr(0, 1)) + std::string(text.substr(2, e - 2));
    parts.digits.erase(std::max<std::size_t>(parts.digits.find_last_not_of('0') + 1, 1));
    parts.exponent = static_cast<int>(written_exponent(text.substr(e + 1)));
    return parts;
}

/// Digits with a point behind the first `whole_count`; no point when nothing follows it.
std::string with_point(const std::string& digits, std::size_t whole_count) {
    if (digits.size() <= whole_count) {
        return digits + std::string(whole_count - digits.size(), '0');
    }
    return digits.substr(0, whole_count) + "." + digits.substr(whole_count);
}

/// "E-05", "E+15", "E+100": the sign always, two digits at least.
std::string exponent_text(int exponent) {
    const std::string digits = std::to_string(std::abs(exponent));
    return (exponent < 0 ? "E-" : "E+") + std::string(digits.size() < 2 ? 1 : 0, '0') + digits;
}

std::string laid_out(const decimal_digits& parts) {
    if (parts.exponent < LOWEST_FIXED_EXPONENT || parts.exponent >= LOWEST_LARGE_EXPONENT) {
        return with_point(parts.digits, 1) + exponent_text(parts.exponent);
    }
    if (parts.exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-parts.exponent - 1), '0') + parts.digits;
    }
    return with_point(parts.digits, static_cast<std::size_t>(parts.exponent) + 1);
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
        throw run_time_error(failure::type_mismatch, "\"" + std::string(text) + "\" is not a number");
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
    const decimal_digits parts = rounded_digits(checked_finite(value));
    return (parts.negative ? "-" : "") + laid_out(parts);
}

std::string str(double value) {
    const std::string text = number_text(value);
    return text.starts_with('-') ? text : " " + text;
}

std::string print_form(std::int64_t value) {
    return (value < 0 ? "" : " ") + std::to_string(value) + " ";
}

std::string print_form_single(float value) {
    const decimal_digits parts = rounded_digits(checked_finite(static_cast<double>(value)), SINGLE_DIGITS);
    return (parts.negative ? "-" : " ") + laid_out(parts) + " ";
}

std::string commas_to_points(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), ',', '.');
    return result;
}

}  // namespace kvt
