// performance_summary: what Calculate Performance computed, for people.
#pragma once

#include <string>

namespace kvt {

struct program;

/// The headline results of perf_res, then one table a result over the 6 speeds (rows) and 6
/// pressures (columns): flow, volumetric, mechanical and overall efficiency, drive power, largest
/// contact stress over a turn, side load. Units are those of the charts: lit/min, kW, MPa, N, bar,
/// or USGall/min, hp, Ksi, lbsf, psi with inches.
std::string performance_summary(const program& kavetta);

}  // namespace kvt
