// GT_combo and GT_fluid: the version of the simulation package and the fluid of its library.
#pragma once

#include <cstddef>
#include <string_view>

namespace kvt {

class teller;
struct program;

/// A click on GT_combo: the year of "GT 2021", then the fluids of that version. A text that names
/// no version, and a version without a library, are told; the list then holds "Select Fluid..."
/// alone.
void select_gt_version(program& kavetta, teller& person, std::string_view text);

/// A click on GT_fluid keeps the row.
void select_gt_fluid(program& kavetta, std::size_t row);

}  // namespace kvt
