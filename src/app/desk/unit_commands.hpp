// Language and units: the caption routines, the unit label routines, and the change of the capacity
// unit.
#pragma once

#include "core/length_unit.hpp"

#include <cstdint>

namespace kvt {

class user;
struct program;

/// The caption routine of a language: sets the captions of all forms, then runs the label routine
/// of drawing_units.
void set_english_captions(program& kavetta);
void set_german_captions(program& kavetta);
/// The routine of the current language: 1 English, 2 German, anything else leaves the captions
/// alone.
void set_captions(program& kavetta);

/// A click on a flag: sets the language, unloads perf_res, runs the caption routine.
void choose_language(program& kavetta, user& person, std::int16_t language);

/// The label routine of a unit, run by a click on its option button: sets drawing_units and the
/// captions that name units, in the current language. No entry changes.
void set_unit_labels(program& kavetta, const length_unit& unit);

/// A selection in the unittype list. Converts capacity and volumereqd through the fixed-point type,
/// and sets units_label. A code that is not in the table does nothing. Throws overflow for values
/// that do not fit.
void select_capacity_unit(program& kavetta, std::int16_t code);

}  // namespace kvt
