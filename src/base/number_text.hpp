// Numbers become text, and texts become numbers, here and nowhere else.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

/// The lenient reading of an entry ("Val"): leading blanks and tabs are skipped, then the longest
/// sign, digits, one point, and an exponent E or e when digits follow it. 0 for a text without a
/// leading number. A comma, a blank and any letter end the number; no hexadecimal, no inf, no nan.
/// Throws overflow when the number exceeds a double; one too near to zero is the nearest denormal
/// or 0.
double val(std::string_view text);

/// Whole-text conversion: optional blanks, one decimal number, optional blanks, nothing else.
/// Throws type_mismatch for anything else (the empty text too), overflow when the number exceeds a
/// double.
double number_of_text(std::string_view text);

/// number_of_text rounded half to even to 32 bits. Throws type_mismatch, overflow.
std::int32_t integer_of_text(std::string_view text);

/// number_of_text rounded half to even to 16 bits. Throws type_mismatch, overflow.
std::int16_t integer16_of_text(std::string_view text);

/// Default text of a double: 15 significant digits, trailing zeros cut, a 0 before the point
/// ("0.5"); exponent form only below 1E-4 and from 1E+15, written "1E-05", "1.5E+15". Zero (either
/// sign) is "0". Throws overflow for an infinite value and for one that is not a number.
std::string number_text(double value);

/// number_text with a leading blank in place of the sign of a number that is not negative ("Str").
std::string str(double value);

/// The formatted-print form of an integer in a file: sign or blank, digits, one trailing blank (" 1
/// ").
std::string print_form(std::int64_t value);

/// The formatted-print form of a single-precision number: sign or blank, up to 7 significant digits
/// without trailing zeros, one trailing blank (" 8085 "). Throws overflow for an infinite value and
/// for one that is not a number.
std::string print_form_single(float value);

/// The text with every "," replaced by ".".
std::string commas_to_points(std::string_view text);

}  // namespace kvt
