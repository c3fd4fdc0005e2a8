// The path of a cutter's centre within the outer rotor, looked at against the profile that it is to
// leave.
// Source: docs/formulas/written_files.md, "Checked offset".
#pragma once

#include "core/design_params.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// A cutter that comes nearer to the profile than its radius by more than this gouges it, mm.
inline constexpr double GOUGE_TOLERANCE_MM = 0.001;

/// The cutter positions of outer_rotor_offset_path that gouge the profile of outer_rotor_path.
struct cutter_gouges {
    int count = 0;
    double depth_mm = 0.0;  ///< of the deepest one; 0 without any
};

/// The design as its entries stand (outer_rotor_entries), mm. Throws as the paths do.
cutter_gouges outer_offset_gouges(const design_params& design, double tool_radius);

/// The same positions with those that gouge moved to where the cutter only touches the profile, and
/// with positions between where a straight move beside a moved one, or across a gap of the path,
/// would gouge. Throws invalid_procedure_call for a cutter that has no room even at the centre.
std::vector<point2> checked_outer_offset_points(const design_params& design, double tool_radius);

}  // namespace kvt
