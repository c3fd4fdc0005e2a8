#include "views/design_view_text.hpp"

#include "core/text_table.hpp"
#include "views/charts/axis_marks.hpp"
#include "views/port_lines.hpp"
#include "views/rotation.hpp"
#include "views/zoom.hpp"

#include <vector>

namespace kvt {

namespace {

/// One more decimal than the place of the mouse has.
constexpr int MORE_DECIMALS = 1;

std::string spoken(std::string_view name, std::int16_t language) {
    return std::string(form_text("spoken", name, language));
}

std::string joined(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        line += (line.empty() ? "" : ", ") + word;
    }
    return line;
}

std::string rotors_text(const design_params& design, const length_unit& unit,
                        std::int16_t language) {
    const auto length = [&](std::string_view name, double mm) {
        return spoken(name, language) +
               rounded_text(unit.from_mm(mm), unit.cursor_decimals + MORE_DECIMALS) + " " +
               std::string(message_text(unit.short_name, language));
    };
    return joined({spoken("inner_rotor", language) + std::to_string(design.numlobes - 1),
                   spoken("outer_rotor", language) + std::to_string(design.numlobes),
                   length("diameter", design.maxdiameter), length("eccentricity", design.ecc)}) +
           ".";
}

}  // namespace

std::string drawn_ports_text(const design_view& view, std::int16_t language) {
    std::vector<std::string> drawn;
    if (shows_outline(view.inlet_portline)) {
        drawn.push_back(spoken("inlet", language));
    }
    if (shows_outline(view.outlet_portline)) {
        drawn.push_back(spoken("outlet", language));
    }
    if (shows_outline(view.metering_groove_portline)) {
        drawn.push_back(spoken("groove", language));
    }
    return drawn.empty() ? spoken("no_ports", language)
                         : spoken("ports", language) + joined(drawn) + ".";
}

std::string design_view_text(const design_params& design, const view_state& state,
                             const design_view& view, const length_unit& unit,
                             std::int16_t language) {
    if (!has_rotors(view)) {
        return spoken("no_rotors", language);
    }
    std::string text = rotors_text(design, unit, language) + " " + spoken("turned", language) +
                       rotated_angle_text(state) + "°. " + drawn_ports_text(view, language);
    if (state.marked_chamber) {
        text += " " + spoken("chamber", language);
    }
    return text;
}

}  // namespace kvt
