// design_view_text: what the Design view shows, in words, for who can't see it.
#pragma once

#include "core/design_params.hpp"
#include "core/length_unit.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

#include <cstdint>
#include <string>

namespace kvt {

/// "Ports: inlet, outlet, metering groove." by what is drawn, "No ports are drawn." without any.
std::string drawn_ports_text(const design_view& view, std::int16_t language);

/// "Inner rotor with lobes: 6, outer rotor with lobes: 7, largest outer diameter 58 mm,
/// eccentricity 2.8 mm. Turned by 12°. Ports: inlet, outlet."; "No rotors are drawn." before
/// Calculate Profiles and after it has refused a design. Lengths in the unit, with one decimal
/// more than the place of the mouse has.
std::string design_view_text(const design_params& design, const view_state& state,
                             const design_view& view, const length_unit& unit,
                             std::int16_t language);

}  // namespace kvt
