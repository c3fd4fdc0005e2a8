// The outline of the metering groove: out along the inner path, round the nose, back along the
// outer path, then the tail.
// Source: docs/formulas/ports.md, "Metering groove".
#pragma once

#include "ports/outline_points.hpp"
#include "ports/port_corners.hpp"

#include <cstdint>
#include <optional>

namespace kvt {

/// A groove between two path circles about (-shift, 0), mm and degrees; f is the fillet radius of
/// its nose.
struct groove_shape {
    double inner_r = 0.0, outer_r = 0.0, f = 0.0, shift = 0.0;
    point2 a, b;  ///< where the inner and the outer path leave the port
    double start_inner_deg = 0.0, start_outer_deg = 0.0;  ///< angles of a and b
    double overlap_deg = 0.0;                             ///< length of the tail inside the port
    point2 tail_inner, tail_outer;                        ///< ends of the tail
    port_corner inner, outer;                             ///< corners of the nose
};

struct groove_outline {
    outline_points outline;
    std::int16_t main_last = 0;          ///< index of b, the end of the visible groove
    std::int16_t mark_a = 0;             ///< tail_inner
    std::int16_t mark_b = 0;             ///< end of the inner path
    std::optional<std::int16_t> mark_c;  ///< end of the nose line, when there is one
    std::int16_t mark_d = 0;             ///< tail_outer
};

/// The closed outline: a, inner path, fillet, nose line, fillet, outer path, b, outer tail, inner
/// tail, a. A radius f of 0 drops both fillets with the points that close them; equal tangent
/// points drop the nose line. Throws run_time_error for a fillet whose angles don't exist, overflow
/// behind index 32767.
groove_outline outline_of_groove(const groove_shape& groove);

}  // namespace kvt
