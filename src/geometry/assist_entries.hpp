// The entries of the Design form before a run of the Design assist, and the dimensions that it
// writes back.
// Source: docs/formulas/design_assist.md.
#pragma once

#include "base/fixed4.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"

#include <cstdint>
#include <optional>

namespace kvt {

/// The message of the first entry that is not above 0, volumereqd first, or nothing.
std::optional<message> first_refused_assist_entry(const entries& boxes);

/// Reads numlobes, clearn_half and the six lengths that the assist needs, lengths into millimetres.
/// ecc, radinnroot and radouter are not read: they are what it looks for. Throws overflow for a
/// length beyond a double.
void read_assist_entries(const entries& boxes, const length_unit& unit, design_params& design);

/// The required capacity, cm3 per revolution: the entry as a number times the cm3 of its unit,
/// rounded once after the multiplication. Throws overflow for what four decimals can't hold.
///     litre and cm3 1      US gallon 3.785      imperial gallon 4.54      cubic inch 16.387
fixed4 required_capacity_cc(const entries& boxes, std::int16_t capacity_unit);

/// Writes ecc and radinnroot in the unit of the entries with four decimals.
/// Kept: in millimetres ecc has the text of a double, which for four decimals shows the same
/// digits; assist_entries_test holds it.
void write_root_and_eccentricity(const design_params& design, const length_unit& unit,
                                 entries& boxes);

/// Writes radouter in the unit of the entries with four decimals.
void write_lobe_radius(const design_params& design, const length_unit& unit, entries& boxes);

/// Kept: millimetres in inch mode too; the next Calculate Profiles corrects the entry by its own
/// rules. assist_entries_test holds it.
void write_assist_outer_root(const design_params& design, entries& boxes);

}  // namespace kvt
