// chamber_commands: what the window Exact Figures does in the Design view, and what opens it at a
// row.
#pragma once

#include <string_view>

namespace kvt {

class form_shower;
struct program;

/// Turns the pair in the Design view so that a chamber stands at a place of its life, the angle of
/// the inner rotor in degrees since its least volume, and marks it. Nothing happens without rotors.
void point_at_chamber(program& kavetta, double place_deg);

/// The mark goes; the pair stays where it stands.
void forget_chamber(program& kavetta);

/// Opens the window Exact Figures at a row of its table.
void show_exact_row(program& kavetta, std::string_view row, form_shower& forms);

}  // namespace kvt
