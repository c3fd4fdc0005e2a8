// The exact STEP files (ISO 10303-21, AP214): bodies of true arcs, lines and splines within 0.1
// micrometre of the profile, with names and colours. Always millimetres, ASCII.
// Source: docs/file-formats.md, "Exact STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"
#include "output/file_source.hpp"

namespace kvt {

/// One rotor as a part. Each of these appends a whole file, or throws run_time_error for a design
/// that has no such body and appends nothing.
void write_exact_step_inner(const file_source& source, text_lines& out);
void write_exact_step_outer(const file_source& source, text_lines& out);
/// Both rotors as parts of an assembly, as they mesh.
void write_exact_step_assembly(const file_source& source, text_lines& out);
/// Every body that the ports have, as parts of an assembly.
void write_exact_step_ports(const file_source& source, text_lines& out);

}  // namespace kvt
