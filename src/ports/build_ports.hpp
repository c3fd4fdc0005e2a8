// The two ports of the housing: from the entries to the closed outlines, with the way back from a
// radius too large.
#pragma once

#include "ports/port_work.hpp"

namespace kvt {

/// Builds the inlet, mirrored below the x axis. Fills the empty angle entries of the inlet and the
/// radius entries of both ports that read as 0. A radius too large is told, port_radii goes back to
/// last_good_port_radius (to 0 when it says that already) and both radii to those of the rotors,
/// and the routine starts again. Kept: Val(port_radii), in the unit of the entries, is compared
/// with last_good_port_radius in mm; build_ports_test holds it. A pass that would write the texts
/// that stand there already ends as refused instead. Throws run_time_error for a vertical side and
/// other quotients by 0. Source: docs/formulas/ports.md.
port_end build_inlet_port(port_work& work);

/// Builds the outlet likewise, above the x axis, and sets last_good_port_radius. A radius too large
/// on a start side with a negative direction leaves the radii alone, builds the inlet again and
/// then starts again, so that both ports share one radius; on any other start side the inlet stays
/// as it is. Notes in inlet_rebuilt that the inlet was finished on that way. Source:
/// docs/formulas/ports.md.
port_end build_outlet_port(port_work& work);

}  // namespace kvt
