// The DXF files: one open two-dimensional polyline each, whose last vertex repeats the first.
// Source: docs/file-formats.md, "DXF files (`.dxf`)".
#pragma once

#include "base/text_file.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"

namespace kvt {

/// Each appends a whole file to the text; a run-time failure leaves the lines before it. Nothing in
/// a file tells its unit: inches in imperial projects, else millimetres. Numbers have six decimals
/// but those of imperial ports.

/// Inner rotor profile, points 0 .. P-1 and point 0 again; in inches each value is divided by 25.4
/// and then written.
void write_dxf_inner_rotor(text_lines& out, const rotor_profiles& rotors, const length_unit& unit);

/// The outer rotor's path about its own centre, from boxes of the Design form without conversion,
/// times scale: 1 unless the boxes are in another unit than the file. Throws run_time_error for
/// entries that make no rotor.
void write_dxf_outer_rotor(text_lines& out, const entries& boxes, double scale = 1.0);

/// A port's outline: point 0 .. last, but none from the first x of exactly 0 on, then point 0.
/// Kept: in inches the text in millimetres is read back, divided by 25.4 and written with up to
/// fifteen digits, so that the last ones say nothing; dxf_files_test holds it. A port that was
/// never designed has the closing vertex only.
void write_dxf_inlet_port(text_lines& out, const port_params& ports, const length_unit& unit);
void write_dxf_outlet_port(text_lines& out, const port_params& ports, const length_unit& unit);

/// The metering groove's outline, points 0 .. groove_last, then point 0; numbers like those of a
/// port.
void write_dxf_metering_groove(text_lines& out, const port_params& ports, const length_unit& unit);

}  // namespace kvt
