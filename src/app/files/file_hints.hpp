// file_hints: what is noticed about a file that has been written: that it would scrap the part.
#pragma once

#include "output/written_files.hpp"

namespace kvt {

struct program;

/// Adds the hints of a written file: arcs of outer_gcode that a machine runs off the profile,
/// cutter positions of outer_offset that gouge it, a faulty metering groove in each file that has
/// one, that of an earlier run in a drawing or model.
void note_scrapped_part(program& kavetta, const written_file& file);

}  // namespace kvt
