// The text of a number without an exponent, for files whose readers expect plain decimals.
#pragma once

#include <string>

namespace kvt {

/// number_text with its exponent, where there is one, written out: "0.00001" for 1E-05,
/// "-1500000000000000" for -1.5E+15. Zero (either sign) is "0". Throws overflow for an infinite
/// value and for one that is not a number.
std::string plain_number_text(double value);

}  // namespace kvt
