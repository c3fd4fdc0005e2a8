// entry_numbers: what kind of number an entry holds, and the unit that stands beside it.
#pragma once

#include "core/app_state.hpp"
#include "core/captions.hpp"
#include "core/entries.hpp"

#include <string>
#include <string_view>

namespace kvt {

enum class number_kind {
    length,  ///< in the unit of length in force, not negative
    angle,   ///< degrees, may be negative
    whole,   ///< a number of lobes or of points, in steps of 1
    plain    ///< any other, not negative
};

/// The kind of an entry that is a box.
number_kind number_kind_of(std::string_view entry);

/// "mm", "in", "°", "%", "Kg/m^3": what the form shows behind the box or in brackets behind its
/// caption; empty for a number without a unit.
std::string entry_unit(const entry_field& entry, const captions& shown, const app_state& state);

}  // namespace kvt
