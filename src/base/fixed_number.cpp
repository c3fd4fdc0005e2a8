// Rounding of a decimal text, digit by digit.
#include "base/fixed_number.hpp"

#include "base/checked_math.hpp"
#include "base/fifteen_digits.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace kvt {

namespace {

/// The digits down to 10^-decimals as they stand, with a 0 in front that a carry can use.
std::string kept_digits(const fifteen_digits& parts, int decimals) {
    std::string kept = "0";
    for (int power = std::max(parts.exponent, 0); power >= -decimals; --power) {
        const int place = parts.exponent - power;
        kept += place >= 0 && place < SIGNIFICANT_DIGITS
                    ? parts.digits[static_cast<std::size_t>(place)]
                    : '0';
    }
    return kept;
}

/// The digit that decides the rounding: 5 and above rounds away from zero.
bool rounds_up(const fifteen_digits& parts, int decimals) {
    const int place = parts.exponent + decimals + 1;
    return place >= 0 && place < SIGNIFICANT_DIGITS &&
           parts.digits[static_cast<std::size_t>(place)] >= '5';
}

void add_one(std::string& digits) {
    std::size_t at = digits.size() - 1;
    while (digits[at] == '9') {
        digits[at] = '0';
        --at;
    }
    ++digits[at];
}

/// The digits of |value| 10^decimals rounded by the rule, with at least one before the point; from
/// the 15-digit text.
std::string rounded_by_text(double magnitude, int decimals) {
    const fifteen_digits parts = fifteen_digits_of(magnitude);
    std::string digits = kept_digits(parts, decimals);
    if (rounds_up(parts, decimals)) {
        add_one(digits);
    }
    const bool has_spare_zero =
        digits[0] == '0' && digits.size() > static_cast<std::size_t>(decimals) + 1;
    return has_spare_zero ? digits.substr(1) : digits;
}

constexpr std::array<double, 7> POWERS_OF_TEN = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};

/// The same digits from one product, as far as that leaves no doubt: for products below 1e9 the
/// 15-digit text and the rounding of the product move it by less than 1e-5, so it only has to stay
/// that far away from a half. Else empty.
std::string rounded_by_product(double magnitude, int decimals) {
    constexpr double LARGEST = 1e9;
    constexpr double DOUBT = 1e-5;
    if (static_cast<std::size_t>(decimals) >= POWERS_OF_TEN.size()) {
        return {};
    }
    const double product = magnitude * POWERS_OF_TEN[static_cast<std::size_t>(decimals)];
    if (!(product < LARGEST)) {
        return {};
    }
    const double whole = std::floor(product);
    const double rest = product - whole;
    if (std::abs(rest - 0.5) < DOUBT) {
        return {};
    }
    std::array<char, 16> buffer;
    const auto number = static_cast<std::int64_t>(whole) + (rest > 0.5 ? 1 : 0);
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    const auto length = static_cast<std::size_t>(end - buffer.data());
    const std::size_t wanted = static_cast<std::size_t>(decimals) + 1;
    std::string digits(length < wanted ? wanted - length : 0, '0');
    return digits.append(buffer.data(), length);
}

}  // namespace

std::string fixed_number(double value, int decimals) {
    assert(decimals >= 0 && decimals <= SIGNIFICANT_DIGITS);
    const double magnitude = std::abs(checked_finite(value));
    std::string digits = rounded_by_product(magnitude, decimals);
    if (digits.empty()) {
        digits = rounded_by_text(magnitude, decimals);
    }
    const bool negative = value < 0.0 && digits.find_first_not_of('0') != std::string::npos;
    if (decimals > 0) {
        digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, '.');
    }
    if (negative) {
        digits.insert(0, 1, '-');
    }
    return digits;
}

}  // namespace kvt
