// The concentric arcs that clear the middle of a pocket.
// Source: docs/formulas/written_files.md, "Pocket".
#pragma once

#include "output/cnc/pocket_region.hpp"

#include <vector>

namespace kvt {

/// Arcs about the pocket's centre at inner_r + f + i t, i = 1 .. Int((outer_r - inner_r - 2 f) /
/// t), and on while the last arc and the last contour leave a part of the pocket uncut. Each one
/// counterclockwise: its points stand at the half degrees and at the ends, where the room for the
/// cutter ends. Arcs without room are missing. Throws overflow for more arcs than a 16-bit counter
/// holds.
std::vector<std::vector<point2>> clearing_arcs(const pocket_shape& pocket,
                                               const pocket_region& region);

}  // namespace kvt
