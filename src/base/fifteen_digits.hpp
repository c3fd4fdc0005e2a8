// The 15 significant digits that every text of a double shows.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kvt {

inline constexpr int SIGNIFICANT_DIGITS = 15;

/// A magnitude rounded to 15 significant digits, half to even of its exact binary value.
struct fifteen_digits {
    std::array<char, SIGNIFICANT_DIGITS> digits{};  ///< '0' .. '9'; the first is '0' for zero only
    int exponent = 0;                               ///< power of ten of the first digit; 0 for zero
    std::size_t count = 1;  ///< how many are left without trailing zeros, at least 1

    std::string_view significant() const { return {digits.data(), count}; }
};

/// magnitude is finite and not negative.
fifteen_digits fifteen_digits_of(double magnitude);

}  // namespace kvt
