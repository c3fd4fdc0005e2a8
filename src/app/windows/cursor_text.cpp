#include "app/windows/cursor_text.hpp"

#include "app/program.hpp"
#include "base/fixed_number.hpp"
#include "base/run_time_error.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "views/twips.hpp"
#include "views/zoom.hpp"

namespace kvt {

namespace {

std::string text_of(const point2& place, const app_state& state) {
    const length_unit& unit = length_unit_of(state);
    const auto shown = [&](double mm) {
        return fixed_number(unit.from_mm(mm), unit.cursor_decimals);
    };
    return shown(place.x) + ", " + shown(place.y) + " " +
           std::string(message_text(unit.short_name, state.language));
}

}  // namespace

std::string cursor_text(const program& kavetta, double x, double y) {
    if (!has_rotors(kavetta.design_view)) {
        return {};
    }
    try {
        const std::optional<point2> place = cursor_position(x, y, kavetta.view_state);
        return place ? text_of(*place, kavetta.app_state) : std::string();
    } catch (const run_time_error&) {
        return {};
    }
}

}  // namespace kvt
