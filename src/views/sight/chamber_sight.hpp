// chamber_sight: the areas of all chambers as the pair stands, and the points where the rotors
// touch. Source: docs/formulas/exact_volume.md, "Chamber".
#pragma once

#include "core/design_params.hpp"
#include "core/length_unit.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/sight/view_box.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

/// A chamber between two contacts: its place, the angle of the inner rotor since its least volume,
/// radians, and its exact area, mm2.
struct seen_chamber {
    double place = 0.0, area_mm2 = 0.0;
};

/// All N of them while the pair is turned by rotation_angle degrees in the view. At angle 0 lobe 0
/// stands on the line of centres, so the chamber before it is half a pitch of the life old:
///     place of chamber k = rotation_angle + (1/2 + k) 360 / (N - 1) degrees, in one life
/// None for a geometry that has no chambers.
std::vector<seen_chamber> chambers_at(const design_params& design, double rotation_angle);

/// "83.12 mm²", with as many decimals as the place of the mouse has.
std::string area_text(double mm2, const length_unit& unit, std::int16_t language);

/// Fills the chambers and writes their areas; a text that would lie over another is left out.
void add_chambers(const design_params& design, double rotation_angle, const length_unit& unit,
                  std::int16_t language, const view_box& box, const sight_metrics& metrics,
                  sight_drawing& drawing);

/// A dot where each lobe of the outer rotor touches the inner one.
void add_contacts(const design_params& design, double rotation_angle, const view_box& box,
                  sight_drawing& drawing);

}  // namespace kvt
