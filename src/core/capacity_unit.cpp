// The list of the capacity units and the table of factors between them.
#include "core/capacity_unit.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace kvt {

namespace {

// The units' sizes as the product rounds them; docs/formulas/capacity-units.md.
constexpr double LITRES_PER_US_GALLON = 3.785;
constexpr double LITRES_PER_IMPERIAL_GALLON = 4.54;
constexpr double US_GALLONS_PER_IMPERIAL_GALLON = 1.1995;
constexpr double CC_PER_CUBIC_INCH = 16.387;
// One gallon a minute at 1000 rpm is a thousandth of a gallon a revolution.
constexpr double CUBIC_INCHES_PER_US_MILLIGALLON = 0.231;
constexpr double CUBIC_INCHES_PER_IMPERIAL_MILLIGALLON = 0.277;

constexpr std::size_t UNIT_COUNT = CAPACITY_UNIT_TEXTS.size();

// Row: the unit before; column: the unit after, both in code order.
// Kept: 1 litre a minute at 1000 rpm is 1 cm3 a revolution, but 2 to 5 is not 3.785 / 16.387: the
// table's own roundings stand, so a road over two units ends elsewhere than the straight one.
constexpr std::array<std::array<double, UNIT_COUNT>, UNIT_COUNT> FACTORS = {{
    {1.0, 1.0 / LITRES_PER_US_GALLON, 1.0 / LITRES_PER_IMPERIAL_GALLON, 1.0,
     1.0 / CC_PER_CUBIC_INCH},
    {LITRES_PER_US_GALLON, 1.0, 1.0 / US_GALLONS_PER_IMPERIAL_GALLON, LITRES_PER_US_GALLON,
     CUBIC_INCHES_PER_US_MILLIGALLON},
    {LITRES_PER_IMPERIAL_GALLON, US_GALLONS_PER_IMPERIAL_GALLON, 1.0, LITRES_PER_IMPERIAL_GALLON,
     CUBIC_INCHES_PER_IMPERIAL_MILLIGALLON},
    {1.0, 1.0 / LITRES_PER_US_GALLON, 1.0 / LITRES_PER_IMPERIAL_GALLON, 1.0,
     1.0 / CC_PER_CUBIC_INCH},
    {CC_PER_CUBIC_INCH, 1.0 / CUBIC_INCHES_PER_US_MILLIGALLON,
     1.0 / CUBIC_INCHES_PER_IMPERIAL_MILLIGALLON, CC_PER_CUBIC_INCH, 1.0},
}};

bool is_code(std::int16_t code) {
    return code >= 1 && code <= static_cast<std::int16_t>(UNIT_COUNT);
}

}  // namespace

std::int16_t capacity_unit_code(std::string_view text) {
    const auto found = std::find(CAPACITY_UNIT_TEXTS.begin(), CAPACITY_UNIT_TEXTS.end(), text);
    if (found == CAPACITY_UNIT_TEXTS.end()) {
        return 0;
    }
    return static_cast<std::int16_t>(std::distance(CAPACITY_UNIT_TEXTS.begin(), found) + 1);
}

double capacity_unit_factor(std::int16_t from, std::int16_t to) {
    if (!is_code(from) || !is_code(to)) {
        return 1.0;
    }
    return FACTORS[static_cast<std::size_t>(from - 1)][static_cast<std::size_t>(to - 1)];
}

}  // namespace kvt
