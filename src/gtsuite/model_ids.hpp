// model_ids: the numbers that new objects, parts and links of a model get.
// Source: docs/file-formats.md, "Model files of the simulation exchange".
#pragma once

#include "gtsuite/model_text.hpp"

#include <array>

namespace kvt {

/// Upper gap, then lower gap.
enum class axial_gap { upper, lower };
inline constexpr std::array AXIAL_GAPS = {axial_gap::upper, axial_gap::lower};

/// "Axial_Gap_Upper", "Axial_Gap_Lower".
std::string_view gap_name(axial_gap gap);

/// Highest numbers of the file as it came; new ones follow them.
struct model_ids {
    long long highest_object = 0;
    long long highest_part = 0;  ///< of parts and links together

    long long object(axial_gap gap) const {
        return highest_object + (gap == axial_gap::upper ? 1 : 2);
    }
    long long part(axial_gap gap) const { return highest_part + (gap == axial_gap::upper ? 1 : 2); }
    /// Of link 0 .. 3.
    long long link(int number) const { return highest_part + 3 + number; }
    /// The highest of all new numbers.
    long long highest_new() const;
};

/// Reads them from `<object id="o..">`, `<part .. id="p..">` and `<link .. id="l..">`. Throws
/// overflow for a number above 1E15.
model_ids read_model_ids(const model_lines& lines);

}  // namespace kvt
