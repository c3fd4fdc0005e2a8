// The table of the length units.
#include "core/length_unit.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <algorithm>
#include <array>
#include <cassert>

namespace kvt {

namespace {

using enum unit_system;

// A new unit is a row here, its name in the messages, and the captions that its row names.
constexpr std::array<length_unit, 2> UNITS = {{
    {MILLIMETRES, "dimens1", "mm", 1.0, metric, text_kind::caption_mm, message::unit_mm, "mm",
     "toolunits_mm", "in_mm", 2, false},
    {INCHES, "dimens2", "", MM_PER_INCH, imperial, text_kind::caption_inch, message::unit_inches,
     "inches", "toolunits_inches", "in_inches", 4, true},
}};

/// The row whose column holds the value, else the other one.
template <typename column>
const length_unit& row_of(column length_unit::*field, column value, const length_unit& other) {
    const auto found = std::ranges::find(UNITS, value, field);
    return found == UNITS.end() ? other : *found;
}

}  // namespace

double length_unit::cut_from_mm(double millimetres) const {
    constexpr double STEPS = 1000.0;
    return cuts_texts ? floor_to_int(millimetres * STEPS / mm) / STEPS : from_mm(millimetres);
}

std::span<const length_unit> length_units() {
    return UNITS;
}

const length_unit& length_unit_of(std::int16_t drawing_units) {
    return row_of(&length_unit::code, drawing_units, UNITS.front());
}

const length_unit& length_unit_of(const app_state& state) {
    return length_unit_of(state.drawing_units);
}

const length_unit& length_unit_of_project(std::string_view text) {
    return row_of(&length_unit::project_text, text, UNITS[1]);
}

const text_row* find_text(std::string_view form, std::string_view name, unit_system system) {
    const text_kind kind =
        system == unit_system::metric ? text_kind::caption_mm : text_kind::caption_inch;
    const text_row* row = find_text(kind, form, name);
    return row == nullptr ? find_caption(form, name) : row;
}

std::string_view form_text(std::string_view form, std::string_view name, std::int16_t language,
                           unit_system system) {
    const text_row* row = find_text(form, name, system);
    assert(row != nullptr);
    return row_text(*row, language);
}

}  // namespace kvt
