// The corners of one side of a port: by search, or in closed form when the side lies on the x axis.
// Source: docs/formulas/ports.md, "Fillets".
#pragma once

#include "ports/port_fields.hpp"
#include "ports/port_work.hpp"

namespace kvt {

/// Sets the corners without fillets, p1 .. p4 of the record, and side_angle_start and
/// side_angle_end, from the angles and radii of the record. Throws division_by_zero for a vertical
/// side.
void set_side_lines(const port_fields& port, const design_params& design, port_params& ports);

/// Corners 1 and 4. Both start angle texts 0: closed form, and both angles of the record become 0.
/// Else the searches, after which the record's angles are those of the tangent points on the side
/// (but for the outlet's outer one). refused: a search ran out, its entry is emptied and focused;
/// or an angle lies below 0.
port_end set_start_corners(const port_fields& port, port_work& work);

/// Corners 2 and 3, likewise with both end angle texts 180. refused: a search ran out, or an angle
/// lies above 180. Kept: the closed form puts 0 into both end angles of the record; port_sides_test
/// holds it.
port_end set_end_corners(const port_fields& port, port_work& work);

/// Whether the fillets of the start side cross: C1x > C4x when side_angle_start >= 0, C1y > C4y
/// when it is negative.
bool start_fillets_cross(const port_fields& port, const port_params& ports);

}  // namespace kvt
