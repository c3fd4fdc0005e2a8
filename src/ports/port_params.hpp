// port_params: the entries of the ports as Design Ports read them, and the outlines it computed.
// Lengths mm, angles degrees.
// Source: docs/formulas/ports.md.
#pragma once

#include "base/zeroed_array.hpp"
#include "ports/groove_outline.hpp"
#include "ports/port_outline.hpp"

#include <cstdint>
#include <span>
#include <string_view>

namespace kvt {

/// Last index of the outline arrays.
inline constexpr int OUTLINE_ARRAY_LAST = 72000;

/// Outlines, centres and points are about the inner rotor axis, with the outer rotor centre at x =
/// -ecc. Corners and points of the inlet have positive y, like the outlet's: only the finished
/// outline of the inlet is mirrored.
struct port_params {
    static zeroed_array outline_array() { return zeroed_array(OUTLINE_ARRAY_LAST + 1); }

    double port_radius = 0.0;  ///< fillet radius f of all corners; 0 means sharp corners
    double last_good_port_radius =
        0.0;                        ///< port_radius of the last run that finished both outlines
    double side_angle_start = 0.0;  ///< direction of the start side of the port built last, radians
    double side_angle_end = 0.0;    ///< direction of its end side, radians

    // Inlet port.
    double inlet_start_inner_deg =
        0.0;  ///< start angle on the inner radius; after the search that of the tangent point
    double inlet_start_outer_deg = 0.0;  ///< start angle on the outer radius; likewise
    double inlet_end_inner_deg =
        0.0;  ///< end angle on the inner radius; 0 stands for both ends at 180
    double inlet_end_outer_deg = 0.0;  ///< end angle on the outer radius; likewise
    double inlet_inner_r = 0.0;        ///< inner radius R, about (0, 0)
    double inlet_outer_r = 0.0;        ///< outer radius Q, about (-ecc, 0)
    double inlet_t1_deg =
        0.0;  ///< corner 1 (start, inner): polar angle of the fillet centre about the arc's centre
    double inlet_c1_x = 0.0, inlet_c1_y = 0.0;  ///< fillet centre
    double inlet_s1_x = 0.0, inlet_s1_y = 0.0;  ///< tangent point on the side
    double inlet_r1_x = 0.0, inlet_r1_y = 0.0;  ///< tangent point on the arc
    double inlet_p1_x = 0.0, inlet_p1_y = 0.0;  ///< corner without its fillet
    double inlet_t2_deg =
        0.0;  ///< corner 2 (end, inner): polar angle of the fillet centre about the arc's centre
    double inlet_c2_x = 0.0, inlet_c2_y = 0.0;  ///< fillet centre
    double inlet_s2_x = 0.0, inlet_s2_y = 0.0;  ///< tangent point on the side
    double inlet_r2_x = 0.0, inlet_r2_y = 0.0;  ///< tangent point on the arc
    double inlet_p2_x = 0.0, inlet_p2_y = 0.0;  ///< corner without its fillet
    double inlet_t3_deg =
        0.0;  ///< corner 3 (end, outer): polar angle of the fillet centre about the arc's centre
    double inlet_c3_x = 0.0, inlet_c3_y = 0.0;  ///< fillet centre
    double inlet_s3_x = 0.0, inlet_s3_y = 0.0;  ///< tangent point on the side
    double inlet_r3_x = 0.0, inlet_r3_y = 0.0;  ///< tangent point on the arc
    double inlet_p3_x = 0.0, inlet_p3_y = 0.0;  ///< corner without its fillet
    double inlet_t4_deg =
        0.0;  ///< corner 4 (start, outer): polar angle of the fillet centre about the arc's centre
    double inlet_c4_x = 0.0, inlet_c4_y = 0.0;  ///< fillet centre
    double inlet_s4_x = 0.0, inlet_s4_y = 0.0;  ///< tangent point on the side
    double inlet_r4_x = 0.0, inlet_r4_y = 0.0;  ///< tangent point on the arc
    double inlet_p4_x = 0.0, inlet_p4_y = 0.0;  ///< corner without its fillet
    zeroed_array inlet_port_x =
        outline_array();  ///< the closed outline, 0 .. inlet_port_last, 0 beyond
    zeroed_array inlet_port_y = outline_array();
    std::int16_t inlet_port_last = 0;  ///< index of the last point, which repeats point 0
    std::int16_t inlet_mark_a = 0;     ///< start side's end: always 0
    std::int16_t inlet_mark_b = 0;     ///< end of the inner arc
    std::int16_t inlet_mark_c = 0;     ///< end of the end side
    std::int16_t inlet_mark_d = 0;     ///< end of the outer arc

    // Outlet port.
    double outlet_start_inner_deg =
        0.0;  ///< start angle on the inner radius; after the search that of the tangent point
    double outlet_start_outer_deg =
        0.0;  ///< start angle on the outer radius; as entered, also after the search
    double outlet_end_inner_deg =
        0.0;  ///< end angle on the inner radius; 0 stands for both ends at 180
    double outlet_end_outer_deg = 0.0;  ///< end angle on the outer radius; likewise
    double outlet_inner_r = 0.0;        ///< inner radius R, about (0, 0)
    double outlet_outer_r = 0.0;        ///< outer radius Q, about (-ecc, 0)
    double outlet_t1_deg =
        0.0;  ///< corner 1 (start, inner): polar angle of the fillet centre about the arc's centre
    double outlet_c1_x = 0.0, outlet_c1_y = 0.0;  ///< fillet centre
    double outlet_s1_x = 0.0, outlet_s1_y = 0.0;  ///< tangent point on the side
    double outlet_r1_x = 0.0, outlet_r1_y = 0.0;  ///< tangent point on the arc
    double outlet_p1_x = 0.0, outlet_p1_y = 0.0;  ///< corner without its fillet
    double outlet_t2_deg =
        0.0;  ///< corner 2 (end, inner): polar angle of the fillet centre about the arc's centre
    double outlet_c2_x = 0.0, outlet_c2_y = 0.0;  ///< fillet centre
    double outlet_s2_x = 0.0, outlet_s2_y = 0.0;  ///< tangent point on the side
    double outlet_r2_x = 0.0, outlet_r2_y = 0.0;  ///< tangent point on the arc
    double outlet_p2_x = 0.0, outlet_p2_y = 0.0;  ///< corner without its fillet
    double outlet_t3_deg =
        0.0;  ///< corner 3 (end, outer): polar angle of the fillet centre about the arc's centre
    double outlet_c3_x = 0.0, outlet_c3_y = 0.0;  ///< fillet centre
    double outlet_s3_x = 0.0, outlet_s3_y = 0.0;  ///< tangent point on the side
    double outlet_r3_x = 0.0, outlet_r3_y = 0.0;  ///< tangent point on the arc
    double outlet_p3_x = 0.0, outlet_p3_y = 0.0;  ///< corner without its fillet
    double outlet_t4_deg =
        0.0;  ///< corner 4 (start, outer): polar angle of the fillet centre about the arc's centre
    double outlet_c4_x = 0.0, outlet_c4_y = 0.0;  ///< fillet centre
    double outlet_s4_x = 0.0, outlet_s4_y = 0.0;  ///< tangent point on the side
    double outlet_r4_x = 0.0, outlet_r4_y = 0.0;  ///< tangent point on the arc
    double outlet_p4_x = 0.0, outlet_p4_y = 0.0;  ///< corner without its fillet
    zeroed_array outlet_port_x =
        outline_array();  ///< the closed outline, 0 .. outlet_port_last, 0 beyond
    zeroed_array outlet_port_y = outline_array();
    std::int16_t outlet_port_last = 0;  ///< index of the last point, which repeats point 0
    std::int16_t outlet_mark_a = 0;     ///< start side's end: always 0
    std::int16_t outlet_mark_b = 0;     ///< end of the inner arc
    std::int16_t outlet_mark_c = 0;     ///< end of the end side
    std::int16_t outlet_mark_d = 0;     ///< end of the outer arc

    // What the outlines were built with: corners, radii and angles of their own, whatever a later
    // or refused pass left in the fields above. All 0 before the first outline.
    port_shape inlet_built, outlet_built;
    groove_shape groove_built;
    bool has_groove = false;  ///< the last run of Design Ports finished its metering groove

    // Metering groove. Its circles and angles are about (-ecc/2, 0).
    double groove_length_deg = 0.0, groove_width_mm = 0.0, groove_depth_mm = 0.0;
    double groove_centre_r = 0.0;  ///< radius of the path
    double groove_inner_r = 0.0;   ///< path radius less half the width
    double groove_outer_r = 0.0;   ///< path radius and half the width
    double groove_corner_r =
        0.0;  ///< fillet radius of the nose: half the width, at most port_radius
    double groove_a_x = 0.0,
           groove_a_y = 0.0;  ///< where the inner path circle leaves the outlet's end side
    double groove_b_x = 0.0, groove_b_y = 0.0;  ///< where the outer path circle leaves it
    double groove_start_inner_deg = 0.0, groove_start_outer_deg = 0.0;  ///< angles of these points
    double nose_inner_deg = 0.0, nose_outer_deg = 0.0;  ///< angles of the nose corners
    double overlap_deg = 0.0;                           ///< path inside the port, 0.6 groove widths
    double groove_tail_outer_x = 0.0,
           groove_tail_outer_y = 0.0;  ///< ends of the paths inside the port
    double groove_tail_inner_x = 0.0, groove_tail_inner_y = 0.0;
    double groove_n1_x = 0.0, groove_n1_y = 0.0;  ///< nose line, from the inner path
    double groove_n2_x = 0.0, groove_n2_y = 0.0;  ///< to the outer path
    double groove_nose_inner_x = 0.0,
           groove_nose_inner_y = 0.0;  ///< nose corners: the same two points
    double groove_nose_outer_x = 0.0, groove_nose_outer_y = 0.0;
    zeroed_array groove_x =
        outline_array();  ///< groove, then its tail inside the port; 0 .. groove_last, 0 beyond
    zeroed_array groove_y = outline_array();
    std::int16_t groove_last = 0;       ///< end of the closed contour
    std::int16_t groove_main_last = 0;  ///< end of the visible groove, on the outlet's end side
    std::int16_t groove_mark_a = 0;     ///< start of the inner tail
    std::int16_t groove_mark_b = 0;     ///< end of the inner path
    std::int16_t groove_mark_c = 0;  ///< end of the nose line; keeps its value when there is none
    std::int16_t groove_mark_d = 0;  ///< end of the outer tail
};

/// A field under its name, for reports and tests.
template <typename value>
struct port_field {
    std::string_view name;
    value port_params::*member;
};

/// An outline array with the index of its last point.
struct port_array {
    std::string_view name;
    zeroed_array port_params::*member;
    std::int16_t port_params::*last;
};

std::span<const port_field<double>> port_values();
std::span<const port_field<std::int16_t>> port_indexes();
std::span<const port_array> port_arrays();

}  // namespace kvt
