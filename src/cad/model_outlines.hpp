// What the CAD packages draw: the rotors' outlines as lists of points, the bodies of the porting,
// and the points that a closed spline goes through. Lengths mm, about the inner rotor axis, with
// the outer rotor centre at x = -ecc.
// Source: docs/formulas/solid_models.md.
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/point2.hpp"
#include "ports/port_params.hpp"

#include <vector>

namespace kvt {

/// The design that the models of the rotors are built from, read from the boxes of the Design form
/// each time: what outer_rotor_entries reads, and thick and maxdiameter. Every other field is 0.
design_params rotor_model_entries(const entries& boxes, const length_unit& unit);

/// The trochoid, 3601 points; the last one repeats the first. Empty before profiles were
/// calculated, as the two lists of the inner rotor.
std::vector<point2> trochoid_points(const rotor_profiles& rotors);
/// The same without the last point, for packages that close a spline by themselves.
std::vector<point2> distinct_trochoid_points(const rotor_profiles& rotors);

/// Every coarseness-th point of the inner rotor, as the Design view shows it, without the closing
/// point: inner_polyline_count = inner_plot_len + 1 - 2 numbers.
std::vector<point2> plotted_inner_points(const rotor_profiles& rotors);

/// All points 0 .. P-1 of the inner rotor, whatever the coarseness.
std::vector<point2> inner_rotor_points(const rotor_profiles& rotors);

/// The points of the outer rotor's path (outer_path_points) at x - ecc, 320 N of them or 300 N
/// without fillets: neither of the two that repeat the first point at the end. Throws as
/// outer_rotor_path does.
std::vector<point2> outer_rotor_points(const design_params& design);

/// The bodies of the porting in the order in which they are built.
enum class port_body_kind { inlet_lower, outlet_lower, groove, outlet_upper, inlet_upper };

/// Where a body stands: under the rotors (ports and groove), or over them as the other half of a
/// double-sided port or as a shadow port.
enum class port_body_place { below, above_double_sided, above_shadow };

/// An outline pushed from one height to another.
struct port_body {
    port_body_kind kind;
    port_body_place place;
    std::vector<point2> outline;  ///< distinct points, in the order of the outline arrays
    double from_z = 0.0;          ///< lower face
    double to_z = 0.0;            ///< upper face, above from_z

    bool is_lower() const { return place == port_body_place::below; }
    double height() const { return to_z - from_z; }
};

/// The bodies of a design, as in the STEP file of the ports. A body whose outline is missing or was
/// refused is left out.
///     inlet and outlet lower: always      from -d to 0      d = thick, thick/2 when double-sided
///     groove: with metering_groove        from -groove_depth_mm to 0
///     outlet and inlet upper: from t0 to t0 + thick/2 when double-sided,
///                             else with shadow_ports to t0 + thick/5
/// t0 is upper_port_height.
std::vector<port_body> port_bodies(const design_params& design, const port_params& ports,
                                   const entries& boxes);

/// Height of the lower face of everything above the rotors: t0 = thick + axial_clear.
double upper_port_height(const design_params& design);

/// The distinct points of a closed outline and points between them, all on its straight lines, so
/// that one smooth closed spline through them follows the lines. a is half of the mean distance of
/// neighbouring points:
///     (1) a line longer than 3 a is divided into ceil(length / a) equal parts
///     (2) the two lines at a point where the direction turns by more than 10 degrees get points at
///         0.02, 0.1 and 0.4 of their length from it
/// A point that repeats the one before it is left out. Fewer than three points come back as given.
std::vector<point2> closed_spline_points(const std::vector<point2>& outline);

/// A length of a drawing that is made in the design's unit: mm / 25.4 in an inch project.
double drawing_length(double mm, const length_unit& unit);

/// x0, y0, x1, y1 ... of points, each number divided by the millimetres in one unit of the package.
std::vector<double> flat_coordinates(const std::vector<point2>& points, double mm_per_unit = 1.0);

}  // namespace kvt
