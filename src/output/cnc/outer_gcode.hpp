// The outer rotor's path as G-codes: what its arcs mean to a machine, and the path with checked
// arcs.
// Source: docs/formulas/written_files.md, "Checked arcs".
#pragma once

#include "geometry/outer_path.hpp"
#include "output/cnc/tool_contour.hpp"

namespace kvt {

/// The arcs of the path, each as one move to its end: lobes clockwise, fillets and roots
/// counterclockwise.
tool_contour outer_moves(const outer_path& path);

/// The path of the points of the X/Y file (arc_points): arcs of more than 170 degrees in pieces,
/// and a straight line to the first point of an arc that does not start where the one before ends.
tool_contour checked_outer_moves(const outer_path& path);

/// The arcs of outer_moves that a machine runs elsewhere than the points of the X/Y file.
struct strayed_arcs {
    int count = 0;            ///< those further off than CONTOUR_TOLERANCE_MM
    double largest_mm = 0.0;  ///< the largest distance; of an arc that does not reach its end that
                              ///< from the straight line
};

strayed_arcs strayed_arcs_of(const outer_path& path);

}  // namespace kvt
