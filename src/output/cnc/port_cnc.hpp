// The CNC files of the ports: points, pocket milling paths and G-codes, section by section.
// Source: docs/file-formats.md, "CNC files (`.cnc`)".
#pragma once

#include "base/text_file.hpp"
#include "output/file_source.hpp"
#include "output/port_contours.hpp"

namespace kvt {

// Each writer appends its preamble and its sections to the text, and takes every outline with what
// it was built with. A metering groove that the last run of Design Ports refused has no section. A
// run-time failure leaves what was written until then.

/// The outlines as X/Y lines, each with its point 0 once more behind it. Kept: an outline repeats
/// point 0 itself, so it stands there twice; port_cnc_test holds it.
void write_port_xy(const file_source& source, port_side side, text_lines& text);

/// The path of a cutter that clears the pockets (pocket_path). The groove has its own cutter.
/// Throws division_by_zero for a cutter without a diameter.
void write_port_pocket(const file_source& source, port_side side, text_lines& text);

/// How far the codes of a port's file lie from its X/Y file, mm (contour_gap). Above
/// CONTOUR_TOLERANCE_MM the codes cannot follow the outline: a fillet that its side does not touch,
/// an arc that runs backwards or over more than half a turn.
double port_gcode_gap(const file_source& source, port_side side);

/// The outlines as arcs and lines, with the places where the tool goes down and up.
void write_port_gcode(const file_source& source, port_side side, text_lines& text);

}  // namespace kvt
