// performance_hint: what the program knows before Calculate Performance is pressed: which entry
// will make it fail or deliver nothing.
#pragma once

#include "core/hints.hpp"
#include "core/text_table.hpp"

#include <optional>
#include <vector>

namespace kvt {

struct program;

/// Why Calculate Performance would fail or deliver nothing for the ports in the records and the
/// entries as they stand; nothing while one of its entries would be refused and the ports are
/// sound. Changes nothing and throws nothing.
std::optional<message> performance_hint(const program& kavetta);

/// Adds it as a hint in the language in force.
void add_performance_hint(const program& kavetta, std::vector<hint>& hints);

}  // namespace kvt
