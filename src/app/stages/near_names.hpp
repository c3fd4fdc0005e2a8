// near_names: what a misspelt name may have meant.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kvt {

/// The number of letters to insert, remove or replace to turn one text into the other, capitals
/// ignored (ASCII).
std::size_t edit_distance(std::string_view a, std::string_view b);

/// At most three of the names that resemble the typed one, nearest first, equal ones in the given
/// order: within a third of its length, but two letters at least, or beginning with it.
std::vector<std::string_view> near_names(std::string_view typed,
                                         const std::vector<std::string_view>& names);

}  // namespace kvt
