// port_summary: what Design Ports computed, for people.
#pragma once

#include <string>

namespace kvt {

struct program;

/// A table with a column for the inlet and one for the outlet: angles in degrees, radii, and the
/// centres of the four corner fillets in the design's unit, the inlet below the x axis. Below it,
/// the same for a metering groove.
std::string port_summary(const program& kavetta);

}  // namespace kvt
