// cursor_text: the place of the mouse in the Design view as the status bar shows it.
#pragma once

#include <string>

namespace kvt {

struct program;

/// The place (x, y) twips of the picture in the length unit in force, about the inner rotor axis, y
/// up: "12.50, -3.25 mm" with two decimals, inches with four. Empty while no rotors are drawn, and
/// for a place beyond any number.
std::string cursor_text(const program& kavetta, double x, double y);

}  // namespace kvt
