// The outer rotor as a chain of circular arcs: what the CNC and DXF files and the solid models of
// it walk along.
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "geometry/circle_arc.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// Where an arc ends and the next one starts may differ by the digits of the constants, mm.
inline constexpr double JOINT_TOLERANCE_MM = 1e-5;

/// Fillets and roots run counterclockwise, lobes clockwise.
enum class outer_arc_kind { fillet, root, lobe };

struct outer_path_arc {
    outer_arc_kind kind;
    point2 centre;
    double radius = 0.0;
    point2 start, end;
};

/// A closed path: the last arc ends at the first point. About the outer rotor centre, in the unit
/// of the design.
struct outer_path {
    point2 first;
    std::vector<outer_path_arc> arcs;
};

/// The values that the outer rotor's files read from the boxes of the Design form each time:
/// numlobes, ecc, radouter, radinnroot, fillet, outer_root. The lengths are multiplied by
/// mm_per_unit; with 1 they stay as typed. Throws overflow for a number of lobes beyond 32 bits.
design_params outer_rotor_entries(const entries& boxes, double mm_per_unit);

/// N lobes of radius r about centres at C = radinnroot + ecc + r, joined to the root circle of
/// radius outer_root by fillets. Lobe i stands at (i + 1) TWO_PI_D/N, so the path starts one step
/// past the x axis: at the root end of that lobe's first flank. Without fillets their arcs are
/// missing and the ends of a flank coincide up to rounding. Source: docs/formulas/written_files.md,
/// "Outer path". Throws run_time_error for a geometry that doesn't close.
outer_path outer_rotor_path(const design_params& design);

/// The path of a cutter's centre: lobes r + tool_radius, root outer_root - tool_radius, fillets
/// fillet - tool_radius and none when that is negative; the lobe centres stay. Where the root arcs
/// vanish (2 alpha N >= TWO_PI_D) the lobe arcs meet in sharp corners halfway between two lobes, at
///     rho = x - sqrt((r + tool_radius)^2 - (C^2 - x^2))      x = C cos(TWO_PI_D / (2 N))
/// Source: docs/formulas/written_files.md, "Outer offset".
outer_path outer_rotor_offset_path(const design_params& design, double tool_radius);

/// The run of an arc's points: from the direction of its start to that of its end, by the table of
/// docs/formulas/outer_rotor.md, "Unwrapping". Where the arcs of a path do not meet it starts and
/// ends elsewhere than the arc. Throws division_by_zero as arc_points does.
circle_arc run_of(const outer_path_arc& arc);

/// The largest distance between the run of an arc and that of the next one, mm.
double largest_gap(const outer_path& path);

/// The points of an arc behind its start, the last one at its end: 10 a fillet, 50 a root, 250 a
/// lobe.
///     centre + radius (cos, sin) of start + j (end - start) / n      j = 1 .. n
/// Source: docs/formulas/written_files.md, "Points of an arc".
/// Throws division_by_zero for an end straight above or below the centre.
std::vector<point2> arc_points(const outer_path_arc& arc);

/// The first point, the points of every arc, then the first point again: 1 + 320 N + 1 points,
/// without fillets 1 + 300 N + 1.
std::vector<point2> outer_path_points(const outer_path& path);

}  // namespace kvt
