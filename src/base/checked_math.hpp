// Arithmetic that raises a run_time_error where the hardware would go on with infinity, NaN or a
// wrapped counter.
#pragma once

#include "base/run_time_error.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace kvt {

/// What the functions below throw, apart from them so that the compiler can put them into the loops
/// that call them millions of times. The value is told in the developer's text.
[[noreturn]] void fail_division(double numerator);
[[noreturn]] void fail_root(double x);
[[noreturn]] void fail_finite(double x);

/// x itself. Throws overflow when x is infinite or not a number.
inline double checked_finite(double x) {
    if (!std::isfinite(x)) {
        fail_finite(x);
    }
    return x;
}

/// numerator / denominator. Throws division_by_zero when the denominator is 0 (0/0 too), overflow
/// when the result is not finite.
inline double checked_divide(double numerator, double denominator) {
    if (denominator == 0.0) {
        fail_division(numerator);
    }
    return checked_finite(numerator / denominator);
}

/// sqrt(x). Throws invalid_procedure_call for a negative or not-a-number argument, overflow for an
/// infinite one.
inline double checked_sqrt(double x) {
    if (std::isnan(x) || x < 0.0) {
        fail_root(x);
    }
    return checked_finite(std::sqrt(x));
}

/// pow(base, exponent). Throws invalid_procedure_call for a negative base with a fractional
/// exponent or a not-a-number result, overflow for an infinite one.
double checked_pow(double base, double exponent);

/// Nearest whole number, half to even, as a double.
double round_half_even(double x);

/// Largest whole number not above x, as a double ("Int").
double floor_to_int(double x);

/// Nearest whole number, half to even. Throws overflow outside -32768 .. 32767.
std::int16_t to_int16(double x);

/// Nearest whole number, half to even. Throws overflow outside the 32-bit range.
std::int32_t to_int32(double x);

/// The arc cosine as the product forms it everywhere: arctan(-c / sqrt(-c c + 1)) + half_pi,
/// radians. half_pi is the constant of the caller's subject. c = 1 and c = -1 divide by zero, |c| >
/// 1 is a root of a negative number: both throw.
double arc_cosine_form(double c, double half_pi);

[[noreturn]] void fail_index(std::int64_t index);

/// items[index] with 0 <= index < size. Throws subscript_out_of_range otherwise.
template <typename container>
auto& checked_at(container& items, std::int64_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= items.size()) {
        fail_index(index);
    }
    return items[static_cast<std::size_t>(index)];
}

}  // namespace kvt
