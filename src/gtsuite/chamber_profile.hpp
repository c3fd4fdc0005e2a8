// The converter's chamber profile: the biggest and the smallest chamber.
// Source: docs/file-formats.md, "Model files of the simulation exchange".
#pragma once

#include <string_view>

namespace kvt {

struct chamber_volumes {
    double biggest_mm3 = 0.0;
    double smallest_mm3 = 0.0;
};

/// Two header lines, then lines of numbers between blanks: angle, volume in mm3. The first volume
/// is the biggest; the smallest is the last one as long as the volumes fall, an equal one ends
/// them. Throws input_past_end for fewer than three lines or a line with fewer than two numbers,
/// type_mismatch for a volume that is none.
chamber_volumes read_chamber_volumes(std::string_view bytes);

}  // namespace kvt
