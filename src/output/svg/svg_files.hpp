// The SVG files: one path a contour with true arcs, in millimetres, dark lines on a light page and
// light ones where the viewer prefers dark.
// Source: docs/file-formats.md, "SVG files (`.svg`)".
#pragma once

#include "base/text_file.hpp"
#include "output/file_source.hpp"

namespace kvt {

/// Each appends a whole file, or throws run_time_error for a design without such a contour and
/// appends nothing. All are ASCII.
void write_svg_inner(const file_source& source, text_lines& out);
void write_svg_outer(const file_source& source, text_lines& out);
void write_svg_inlet(const file_source& source, text_lines& out);
void write_svg_outlet(const file_source& source, text_lines& out);
void write_svg_groove(const file_source& source, text_lines& out);
/// Both rotors as they mesh.
void write_svg_pair(const file_source& source, text_lines& out);
/// The ports and the groove over both rotors.
void write_svg_ports(const file_source& source, text_lines& out);

}  // namespace kvt
