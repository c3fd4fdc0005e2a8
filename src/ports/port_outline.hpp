// The closed outline of a port from its corners: two arcs, two sides, up to four fillets.
#pragma once

#include "ports/outline_points.hpp"
#include "ports/port_corners.hpp"

#include <array>
#include <cstdint>

namespace kvt {

/// A port between its inner radius R about (0, 0) and its outer radius Q about (-e, 0), mm; f is
/// the fillet radius.
struct port_shape {
    double R = 0.0, Q = 0.0, f = 0.0, e = 0.0;
    double side_angle_start = 0.0;  ///< radians
    std::array<port_corner, 4>
        corners;  ///< corners 1 .. 4: start inner, end inner, end outer, start outer
};

struct port_outline {
    outline_points outline;
    std::array<std::int16_t, 4> marks =
        {};  ///< a .. d: point 0, end of inner arc, end of end side, end of outer arc
};

/// The outline in positive y, anticlockwise along the inner arc first, its last point equal to
/// point 0 = S1: S1, fillet, R1, inner arc, R2, fillet, S2, end side, S3, fillet, R3, outer arc,
/// R4, fillet, S4, start side, S1. A radius f whose text reads as 0 drops each fillet with the
/// point that closes it (R1, S2, R3, S4). Throws run_time_error for a fillet whose angles don't
/// exist. Source: docs/formulas/ports.md, "Point list".
port_outline outline_of_port(const port_shape& port);

}  // namespace kvt
