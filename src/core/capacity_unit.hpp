// The five capacity units: codes, list texts, conversion factors.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kvt {

/// The list texts in code order; element 0 is code 1.
inline constexpr std::array<std::string_view, 5> CAPACITY_UNIT_TEXTS = {
    "Lit/Min/1000rpm", "USGall/Min/1000rpm", "ImpGall/Min/1000rpm", "CC/Rev", "Cu In/Rev"};

/// The code 1 .. 5 of a list text; 0 for a text that is not in the list.
std::int16_t capacity_unit_code(std::string_view text);

/// The factor from the unit with code `from` to the unit with code `to`, both 1 .. 5, as the
/// product's table has it (the table is not the exact inverse of itself: 2 to 5 is 0.231, 5 to 2 is
/// 1 / 0.231). Returns 1 for other codes.
double capacity_unit_factor(std::int16_t from, std::int16_t to);

}  // namespace kvt
