// The table of the capacity units, and the pairs of units whose factor is rounded on its own.
#include "core/capacity_unit.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kvt {

namespace {

// 1 litre a minute at 1000 rpm is 1 cm3 a revolution. A new unit is one row here.
constexpr std::array<capacity_unit, 5> UNITS = {{
    {"Lit/Min/1000rpm", 1.0},
    {"USGall/Min/1000rpm", 3.785},
    {"ImpGall/Min/1000rpm", 4.54},
    {"CC/Rev", 1.0},
    {"Cu In/Rev", 16.387},
}};

/// One unit of code `larger` is `factor` units of code `smaller`, and the other way its reciprocal.
struct own_factor {
    std::int16_t larger, smaller;
    double factor;
};

// Kept: 3.785 / 16.387 is not 0.231. These roundings stand beside those of the units, so a road
// over two units ends elsewhere than the straight one; capacity_unit_test holds it.
constexpr std::array<own_factor, 3> OWN_FACTORS = {{
    {3, 2, 1.1995},  // US gallons in an imperial gallon
    {2, 5, 0.231},   // cubic inches in a thousandth of a US gallon
    {3, 5, 0.277},   // cubic inches in a thousandth of an imperial gallon
}};

}  // namespace

std::span<const capacity_unit> capacity_units() {
    return UNITS;
}

const capacity_unit* find_capacity_unit(std::int16_t code) {
    const bool known = code >= 1 && static_cast<std::size_t>(code) <= UNITS.size();
    return known ? &UNITS[static_cast<std::size_t>(code - 1)] : nullptr;
}

std::int16_t capacity_unit_code(std::string_view text) {
    const auto found = std::ranges::find(UNITS, text, &capacity_unit::list_text);
    return found == UNITS.end() ? std::int16_t{0}
                                : static_cast<std::int16_t>(found - UNITS.begin() + 1);
}

double cc_in_capacity_unit(std::int16_t code) {
    const capacity_unit* unit = find_capacity_unit(code);
    return unit == nullptr ? 1.0 : unit->cc;
}

double capacity_unit_factor(std::int16_t from, std::int16_t to) {
    if (find_capacity_unit(from) == nullptr || find_capacity_unit(to) == nullptr) {
        return 1.0;
    }
    for (const auto& [larger, smaller, factor] : OWN_FACTORS) {
        if (from == larger && to == smaller) {
            return factor;
        }
        if (from == smaller && to == larger) {
            return 1.0 / factor;
        }
    }
    return cc_in_capacity_unit(from) / cc_in_capacity_unit(to);
}

}  // namespace kvt
