// port_params: the entries of the ports as Design Ports read them, and the outlines it computed.
// Lengths mm, angles degrees.
// Source: docs/formulas/ports.md.
#pragma once

#include "base/zeroed_array.hpp"
#include "ports/groove_outline.hpp"
#include "ports/port_outline.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

/// Last index of the outline arrays.
inline constexpr int OUTLINE_ARRAY_LAST = 72000;

enum class port_side { inlet, outlet };

/// The point on the other side of the x axis: how points of the inlet lie in the drawing.
inline point2 mirrored(point2 point) {
    return {point.x, -point.y};
}

/// Indexes of a port's corners.
inline constexpr std::size_t START_INNER = 0, END_INNER = 1, END_OUTER = 2, START_OUTER = 3;

/// A corner as it is entered and searched, with the fillet that was found for it.
struct entered_corner : port_corner {
    double angle_deg = 0.0;  ///< entered angle; after the search that of the tangent point
    point2 p;                ///< corner without its fillet
};

/// One port. Corners and points have positive y also for the inlet: only its finished outline is
/// mirrored.
struct port_record {
    static zeroed_array outline_array() { return zeroed_array(OUTLINE_ARRAY_LAST + 1); }

    /// By START_INNER .. START_OUTER. End angles of 0 stand for both ends at 180. The outlet's
    /// start angle on the outer radius stays as entered, also after the search.
    std::array<entered_corner, 4> corners;
    double inner_r = 0.0;              ///< inner radius R, about (0, 0)
    double outer_r = 0.0;              ///< outer radius Q, about (-ecc, 0)
    zeroed_array x = outline_array();  ///< the closed outline, 0 .. last, 0 beyond
    zeroed_array y = outline_array();
    std::int16_t last = 0;  ///< index of the last point, which repeats point 0
    /// Start side's end (always 0), end of the inner arc, of the end side, of the outer arc.
    std::array<std::int16_t, 4> marks = {};

    /// What the outline was built with: corners, radii and angles of its own, whatever a later or
    /// refused pass left in the fields above. All 0 before the first outline.
    port_shape built;
};

/// Outlines, centres and points are about the inner rotor axis, with the outer rotor centre at x =
/// -ecc.
struct port_params {
    double port_radius = 0.0;  ///< fillet radius f of all corners; 0 means sharp corners
    double last_good_port_radius =
        0.0;                        ///< port_radius of the last run that finished both outlines
    double side_angle_start = 0.0;  ///< direction of the start side of the port built last, radians
    double side_angle_end = 0.0;    ///< direction of its end side, radians

    port_record inlet, outlet;

    port_record& of(port_side side) { return side == port_side::inlet ? inlet : outlet; }
    const port_record& of(port_side side) const {
        return side == port_side::inlet ? inlet : outlet;
    }

    // Metering groove. Its circles and angles are about (-ecc/2, 0).
    groove_shape groove_built;  ///< as port_record::built
    bool has_groove = false;    ///< the last run of Design Ports finished its metering groove
    double groove_length_deg = 0.0, groove_width_mm = 0.0, groove_depth_mm = 0.0;
    double groove_centre_r = 0.0;  ///< radius of the path
    double groove_inner_r = 0.0;   ///< path radius less half the width
    double groove_outer_r = 0.0;   ///< path radius and half the width
    double groove_corner_r =
        0.0;          ///< fillet radius of the nose: half the width, at most port_radius
    point2 groove_a;  ///< where the inner path circle leaves the outlet's end side
    point2 groove_b;  ///< where the outer path circle leaves it
    double groove_start_inner_deg = 0.0, groove_start_outer_deg = 0.0;  ///< angles of these points
    double nose_inner_deg = 0.0, nose_outer_deg = 0.0;  ///< angles of the nose corners
    double overlap_deg = 0.0;                           ///< path inside the port, 0.6 groove widths
    point2 groove_tail_outer, groove_tail_inner;        ///< ends of the paths inside the port
    point2 groove_n1;                                   ///< nose line, from the inner path
    point2 groove_n2;                                   ///< to the outer path
    point2 groove_nose_inner, groove_nose_outer;        ///< nose corners: the same two points
    zeroed_array groove_x = port_record::outline_array();  ///< groove, then its tail inside the
                                                           ///< port; 0 .. groove_last, 0 beyond
    zeroed_array groove_y = port_record::outline_array();
    std::int16_t groove_last = 0;       ///< end of the closed contour
    std::int16_t groove_main_last = 0;  ///< end of the visible groove, on the outlet's end side
    std::int16_t groove_mark_a = 0;     ///< start of the inner tail
    std::int16_t groove_mark_b = 0;     ///< end of the inner path
    std::int16_t groove_mark_c = 0;  ///< end of the nose line; keeps its value when there is none
    std::int16_t groove_mark_d = 0;  ///< end of the outer tail
};

/// A field under the name that reports and tests know it by: a port's own name stands before its
/// fields, and a corner's number, 1 .. 4, behind the letter: inlet_c1_x, outlet_start_inner_deg.
template <typename value>
struct port_field {
    std::string name;
    value* held;
};

/// An outline array with the index of its last point.
struct port_array {
    std::string name;
    const zeroed_array* values;
    std::int16_t last;
};

std::vector<port_field<double>> port_values(port_params& ports);
std::vector<port_field<const double>> port_values(const port_params& ports);
std::vector<port_field<const std::int16_t>> port_indexes(const port_params& ports);
std::vector<port_array> port_arrays(const port_params& ports);

}  // namespace kvt
