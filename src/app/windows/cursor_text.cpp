#include "app/windows/cursor_text.hpp"

#include "base/constants.hpp"
#include "base/fixed_number.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "views/cursor_position.hpp"
#include "views/zoom.hpp"

namespace kvt {

namespace {

std::string text_of(const point2& place, const app_state& state) {
    const bool inches = state.drawing_units == INCHES;
    const double unit = inches ? MM_PER_INCH : 1.0;
    const int decimals = inches ? 4 : 2;
    return fixed_number(place.x / unit, decimals) + ", " + fixed_number(place.y / unit, decimals) +
           " " +
           std::string(
               message_text(inches ? message::unit_inches : message::unit_mm, state.language));
}

}  // namespace

std::string cursor_text(const program& kavetta, double x, double y) {
    if (!has_rotors(kavetta.design_view)) {
        return {};
    }
    try {
        const std::optional<point2> place = cursor_position(x, y, kavetta.app_state);
        return place ? text_of(*place, kavetta.app_state) : std::string();
    } catch (const run_time_error&) {
        return {};
    }
}

}  // namespace kvt
