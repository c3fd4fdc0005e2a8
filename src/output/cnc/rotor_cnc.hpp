// The CNC files of the rotors: points, cutter paths, lathe lines and G-codes.
// Source: docs/file-formats.md, "CNC files (`.cnc`)".
#pragma once

#include "base/text_file.hpp"
#include "output/cnc/outer_gcode.hpp"
#include "output/cnc/outer_offset.hpp"
#include "output/file_source.hpp"

#include <string>

namespace kvt {

// Each writer appends its preamble and its body to the text, 3601 body lines for the inner rotor. A
// run-time failure leaves what was written until then.

/// The inner profile 0 .. 3599 and point 0 again, as X/Y lines; clockwise with Opp_Plot.
void write_inner_xy(const file_source& source, text_lines& text);
/// The cutter's centre round the inner rotor (inner_offset_points), likewise.
void write_inner_offset(const file_source& source, text_lines& text);
/// How many cutter centres of that file lie on the wrong side, and which file to use; empty without
/// any. Throws as the writer does.
std::string inner_offset_notice(const file_source& source);
/// The same file with every point on the right side (checked_inner_offset_points).
void write_inner_offset_checked(const file_source& source, text_lines& text);
/// The inner profile as lathe lines, counterclockwise always.
void write_inner_lathe(const file_source& source, text_lines& text);

// The files of the outer rotor read the boxes of the Design form each time.

/// The points of the outer rotor's path as X/Y lines.
void write_outer_xy(const file_source& source, text_lines& text);
/// The points of the cutter's path.
void write_outer_offset(const file_source& source, text_lines& text);
/// The same positions, kept at the cutter's radius from the profile (checked_outer_offset_points).
void write_outer_offset_checked(const file_source& source, text_lines& text);
/// Which of the positions gouge the profile. Throws as the writer does.
cutter_gouges outer_offset_gouges(const file_source& source);
/// The arcs of the path as G02 and G03. Kept: the last line has four decimals whatever the
/// resolution; rotor_cnc_test holds it.
void write_outer_gcode(const file_source& source, text_lines& text);
/// Which of those arcs a machine runs elsewhere. Throws as the points of the path do.
strayed_arcs outer_gcode_strayed_arcs(const file_source& source);
/// The same path with arcs that every machine runs as the points of the X/Y file lie
/// (checked_outer_moves).
void write_outer_gcode_checked(const file_source& source, text_lines& text);
/// The points as lathe lines.
void write_outer_lathe(const file_source& source, text_lines& text);

}  // namespace kvt
