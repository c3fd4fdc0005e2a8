// The fixed number format of coordinate files: "12.3400", always the same count of decimals.
#pragma once

#include <string>

namespace kvt {

/// value with at least one digit before the point and exactly `decimals` behind it, "-" for
/// negative values. The value's 15-digit text is what gets rounded, ties away from zero: 0.125
/// gives "0.13", and so does a value whose 15-digit text is 0.125. A text of zeros only never
/// carries "-". decimals 0 .. 15; with 0 there is no point. Throws overflow for an infinite value
/// and for one that is not a number.
std::string fixed_number(double value, int decimals);

}  // namespace kvt
