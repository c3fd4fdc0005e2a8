// limits_text: the limits of an entry in words, in the language in force.
#pragma once

#include "core/entries.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

struct entry_limits;
struct program;

/// "inner rotor errors": a few words for a message that is told just outside a limit; its first
/// sentence where there are none.
std::string limit_reason(std::string_view told, std::int16_t language);

/// "Eccentricity", without the unit that the form shows in its caption.
std::string limited_entry_name(const program& kavetta, const entry_field& entry);

/// A number as the language writes it, with the unit of the entry: "2,87 mm".
std::string with_entry_unit(const program& kavetta, const entry_field& entry,
                            const std::string& number);

/// "1.92 to 2.87 mm (limited by: inner rotor errors)"; empty when there is no end to tell.
std::string range_text(const program& kavetta, const entry_field& entry,
                       const entry_limits& limits);

/// "Eccentricity: 1.92 to 2.87 mm (limited by: inner rotor errors)"; empty as range_text.
std::string limits_text(const program& kavetta, const entry_field& entry,
                        const entry_limits& limits);

/// "Nearest valid value: 2.87 mm"; empty when the present number is accepted.
std::string nearest_text(const program& kavetta, const entry_field& entry,
                         const entry_limits& limits);

}  // namespace kvt
