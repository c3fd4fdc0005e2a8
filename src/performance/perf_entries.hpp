// The entries of Perffrm: their decimal commas, the validation of Calculate Performance, and their
// reading.
#pragma once

#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "performance/perf_inputs.hpp"

#include <optional>

namespace kvt {

/// Replaces every comma of the thirteen fluid, material and range entries by a full stop.
/// Face_area_value and OD_area_value keep theirs.
void clean_up_perf_entries(entries& boxes);

/// The first check of the validation that fails.
struct refused_perf_entry {
    message text;
    std::string entries::*emptied;  ///< the entry of this check's row, and no other
};

/// Tests fluid, speeds, pressures, materials and friction in their fixed order; each entry must be
/// above 0, and each range must rise. Nothing when all pass. Throws overflow for a number beyond a
/// double.
std::optional<refused_perf_entry> first_refused_perf_entry(const entries& boxes);

/// The inputs in the units of the model. The entries of the imperial system are in lb/ft3, inches
/// of mercury, ksi and psi. Source: docs/formulas/flow.md, "Units".
perf_inputs read_perf_inputs(const entries& boxes, unit_system system);

/// The rotor thickness in mm as the entry of Form1 says now: performance reads it anew.
double thickness_entry_mm(const entries& boxes, const length_unit& unit);

}  // namespace kvt
