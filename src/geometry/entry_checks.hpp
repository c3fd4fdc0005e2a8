// The entries of the Design form before a run: clean-up, validation, reading into millimetres,
// shaft check.
// Source: docs/formulas/trochoid.md, "Shaft check".
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "core/teller.hpp"
#include "core/text_table.hpp"

#include <cstdint>
#include <optional>
#include <string_view>

namespace kvt {

/// Clean up entries: an empty thick becomes "1" and a numlobes below 3 becomes "3", each with its
/// message; stores numlobes; seven empty entries become "0"; in thirteen entries every comma
/// becomes a point. Throws type_mismatch when numlobes is no number.
void clean_up_entries(entries& boxes, design_params& design, teller& person, std::int16_t language);

/// An entry that stops the run.
struct refused_entry {
    message text;
    std::string_view focus;  ///< the control that gets the input focus; empty for none
};

/// The first entry that is not above 0, in the order of the form's checks, or nothing.
/// Kept: ecc is tested as a text, so "0.0" and negative values pass; entry_checks_test holds it.
std::optional<refused_entry> first_refused_entry(const entries& boxes);

/// Reads the entries into millimetres and sets inner_plot_len = (P + P) / coarseness + 1.
/// outer_root is not read here. Throws division_by_zero when coarseness rounds to 0, overflow when
/// a counter doesn't fit.
void read_entries(const entries& boxes, const length_unit& unit, design_params& design,
                  rotor_profiles& rotors);

/// 2 * radinnroot < minmaterial + shaftdiameter.
/// Kept: minmaterial counts once on the diameter, not on each side; entry_checks_test holds it.
bool shaft_material_too_thin(const design_params& design);

}  // namespace kvt
