// capacity_unit: the units of capacity, one row a unit, and the conversion factors between them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace kvt {

struct capacity_unit {
    std::string_view list_text;  ///< in the list unittype and behind a capacity, in every language
    double cc;                   ///< cm3 a revolution in one unit, as the product rounds it
};

/// The table in the order of the list; element 0 has the code 1.
std::span<const capacity_unit> capacity_units();

/// The row of a code; nullptr for a code that is not in the table.
const capacity_unit* find_capacity_unit(std::int16_t code);

/// The code of a list text; 0 for a text that is not in the list.
std::int16_t capacity_unit_code(std::string_view text);

/// cm3 a revolution in one unit of the code; 1 for other codes.
double cc_in_capacity_unit(std::int16_t code);

/// The factor from the unit with code `from` to the unit with code `to`:
///     cc of from / cc of to
/// but for the pairs that have a rounded factor of their own. Returns 1 for other codes.
/// Source: docs/formulas/capacity-units.md.
double capacity_unit_factor(std::int16_t from, std::int16_t to);

}  // namespace kvt
