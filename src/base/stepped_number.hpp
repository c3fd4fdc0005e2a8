// stepped_number: a typed number counted up and down by units of its last digit.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

/// The decimals of a typed number, behind a point or a comma: 2 of "2.85". Nothing for a text that
/// is no plain number.
std::optional<int> decimals_of(std::string_view text);

/// The number with steps added to its last digit, with as many decimals and the same mark: "2.85"
/// and 1 give "2.86", "9,9" and 1 "10,0"; not below 0 unless it may be negative. Nothing for a text
/// that is no plain number of at most 15 digits (an exponent, an empty text).
std::optional<std::string> stepped_number(std::string_view text, int steps,
                                          bool may_be_negative = true);

}  // namespace kvt
