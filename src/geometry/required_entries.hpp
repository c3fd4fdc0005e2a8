// The entries that Calculate Profiles and the Design assist both need above 0, in the order in
// which both check them.
#pragma once

#include "base/number_text.hpp"
#include "core/entries.hpp"
#include "core/text_table.hpp"

#include <array>
#include <optional>
#include <span>
#include <string>

namespace kvt {

/// An entry that must read as more than 0, and what the user is told otherwise.
struct required_entry {
    std::string entries::*entry;
    message text;
};

inline constexpr std::array<required_entry, 8> REQUIRED_ENTRIES = {{
    {&entries::numlobes, message::input_numlobes},
    {&entries::shaftdiameter, message::input_shaftdiameter},
    {&entries::clearn, message::input_clearn},
    {&entries::thick, message::input_thick},
    {&entries::minmaterial, message::input_minmaterial},
    {&entries::maxdiameter, message::input_maxdiameter},
    {&entries::axial_clear, message::input_axial_clear},
    {&entries::radial_clear, message::input_radial_clear},
}};

/// The message of the first entry that is not above 0, or nothing. A text that is no number reads
/// as 0.
inline std::optional<message> first_missing_entry(const entries& boxes,
                                                  std::span<const required_entry> rows) {
    for (const auto& [entry, text] : rows) {
        if (!(val(boxes.*entry) > 0.0)) {
            return text;
        }
    }
    return std::nullopt;
}

}  // namespace kvt
