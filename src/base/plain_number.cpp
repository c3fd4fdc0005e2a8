#include "base/plain_number.hpp"

#include "base/number_text.hpp"

#include <cstddef>
#include <string_view>

namespace kvt {

namespace {

/// "1.25" and -5 give "0.0000125", "1.25" and 4 "12500". The mantissa has one digit before its
/// point and no sign.
std::string shifted(std::string_view mantissa, int exponent) {
    std::string digits(mantissa.substr(0, 1));
    if (mantissa.size() > 2) {
        digits += mantissa.substr(2);
    }
    if (exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    // An exponent is written from 1E+15 on, beyond the last of the 15 digits: no point is left.
    return digits + std::string(static_cast<std::size_t>(exponent) + 1 - digits.size(), '0');
}

}  // namespace

std::string plain_number_text(double value) {
    std::string text = number_text(value);
    const std::size_t e = text.find('E');
    if (e == std::string::npos) {
        return text;
    }
    const std::string_view all = text;
    const std::size_t sign = all.starts_with('-') ? 1 : 0;
    const int exponent = integer_of_text(all.substr(e + 1));
    return std::string(all.substr(0, sign)) + shifted(all.substr(sign, e - sign), exponent);
}

}  // namespace kvt
