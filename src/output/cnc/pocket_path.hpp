// The path of a cutter that clears the pocket of a port or of the metering groove.
// Source: docs/formulas/written_files.md, "Pocket".
#pragma once

#include "output/cnc/pocket_region.hpp"

#include <vector>

namespace kvt {

/// The centres of the cutter, joined by straight moves, no nearer to the outline than its radius t
/// (to 0.002 mm):
///     1. passes k = 1 .. Int((f - t) / (0.5 t)): the outline moved inward by d = f - k 0.5 t,
///     closed
///     2. arcs about the centre at inner_r + f + i t, i = 1 .. Int((outer_r - inner_r - 2 f) / t),
///     and on while a part
///        of the pocket stays uncut; points every half degree, neighbours the other way round
///     3. the outline moved inward by t, from its point 0, closed
/// Points that come nearer to the outline than their pass are left out. A move between these runs
/// straight where the cutter has room all the way, else along the last contour, the shorter way.
/// Empty where the cutter has no room. Throws division_by_zero for a radius of 0,
/// invalid_procedure_call for a negative one, overflow for more passes or arcs than a 16-bit
/// counter holds, subscript_out_of_range without an outline.
std::vector<point2> pocket_path(const pocket_shape& pocket);

}  // namespace kvt
