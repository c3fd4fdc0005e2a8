// The exact DXF files (AC1015): closed polylines with bulges, and the inner rotor as a spline, each
// contour on the layer of its name, in the unit of the project, which the head names.
// Source: docs/file-formats.md, "Exact DXF files (`.dxf`)".
#pragma once

#include "base/text_file.hpp"
#include "output/file_source.hpp"

namespace kvt {

/// Each appends a whole file, or throws run_time_error for a design without such a contour and
/// appends nothing. All lie about the inner rotor axis, the outer rotor's at x = -ecc.
void write_exact_dxf_inner(const file_source& source, text_lines& out);
/// The inner rotor as a polyline of straight lines within 1 micrometre of the profile.
void write_exact_dxf_inner_polyline(const file_source& source, text_lines& out);
/// The profile and its rim.
void write_exact_dxf_outer(const file_source& source, text_lines& out);
void write_exact_dxf_inlet(const file_source& source, text_lines& out);
void write_exact_dxf_outlet(const file_source& source, text_lines& out);
void write_exact_dxf_groove(const file_source& source, text_lines& out);
/// Both rotors as they mesh, with a mark at each axis.
void write_exact_dxf_pair(const file_source& source, text_lines& out);

}  // namespace kvt
