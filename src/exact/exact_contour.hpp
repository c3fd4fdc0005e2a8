// exact_contour: the closed contours of rotors, ports and groove as true arcs, straight lines and
// the splines of the inner rotor, mm about the inner rotor axis with the outer rotor's at x = -ecc.
// Source: docs/formulas/written_files.md, "Exact contours".
#pragma once

#include "core/design_params.hpp"
#include "exact/cubic_spline.hpp"
#include "exact/outer_outline.hpp"
#include "geometry/point2.hpp"
#include "ports/groove_outline.hpp"
#include "ports/port_outline.hpp"

#include <vector>

namespace kvt {

enum class piece_kind { line, arc, spline };

struct exact_piece {
    piece_kind kind = piece_kind::line;
    point2 start, end;
    true_arc arc;         ///< of an arc; may be more than half a turn
    cubic_spline spline;  ///< of a spline

    /// Of an arc, radians, positive counter-clockwise.
    double sweep() const { return arc.to - arc.from; }
};

/// Each piece starts where the one before ends, the first one at the end of the last.
using exact_contour = std::vector<exact_piece>;

exact_piece line_piece(const point2& start, const point2& end);
exact_piece arc_piece(const true_arc& arc);

/// The area within, mm2; negative for a contour that runs clockwise.
double enclosed_area(const exact_contour& contour);

/// The same contour walked backwards. It may not have splines.
exact_contour reversed_contour(const exact_contour& contour);

/// The contours below run counter-clockwise. Pieces shorter than 1e-6 mm are left out.

/// The inner rotor with its tip clearance: a spline from root to root a lobe. Throws as
/// inner_lobe_spline does.
exact_contour inner_rotor_arcs(const design_params& design);

/// The inner rotor as straight lines within a distance of its profile, mm. Throws likewise.
exact_contour inner_rotor_lines(const design_params& design, double chord_error);

/// The outer rotor: fillet, root, fillet, lobe, lobe after lobe. Throws as outline_of_lobe does.
exact_contour outer_rotor_arcs(const design_params& design);

/// The outer rotor's rim: two halves of the circle of maxdiameter.
exact_contour rim_of_outer_rotor(const design_params& design);

/// A port in positive y, or mirrored below the x axis where the inlet lies, with the corners that
/// Design Ports found.
exact_contour port_arcs(const port_shape& port, bool is_below);

/// The metering groove with its tail inside the port.
exact_contour groove_arcs(const groove_shape& groove);

}  // namespace kvt
