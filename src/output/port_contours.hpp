// The outlines of the ports and of the metering groove as lists of points, as the output files walk
// along them.
// Source: docs/formulas/ports.md, "Point list".
#pragma once

#include "geometry/point2.hpp"
#include "ports/port_params.hpp"

#include <vector>

namespace kvt {

/// Points 0 .. last of a port's outline, mm about the inner rotor axis; the list stops before the
/// first x that is exactly 0. Empty for a port that was not designed.
std::vector<point2> port_contour(const port_params& ports, port_side side);

/// Points 0 .. groove_last of the metering groove with its tail; the last one repeats point 0.
/// Empty without a groove.
std::vector<point2> groove_contour(const port_params& ports);

/// The same points with x negated, in the same order: the outline of a shadow port.
std::vector<point2> shadow_contour(std::vector<point2> contour);

}  // namespace kvt
