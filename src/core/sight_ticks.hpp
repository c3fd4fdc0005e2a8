// sight_ticks: what the Design view shows beside the drawing itself, as ticked in its menu.
#pragma once

#include <span>
#include <string_view>

namespace kvt {

struct sight_ticks {
    bool filled = true;  ///< rotors and ports
    bool dimensions = false;
    bool grid = false;  ///< with the scale bar
    bool contacts = false;
    bool chambers = false;   ///< their areas
    bool measuring = false;  ///< the left button sets the ends of a measured line

    friend bool operator==(const sight_ticks&, const sight_ticks&) = default;
};

/// One tick: the entry of the menu, and the key under which preferences.ini keeps it.
struct sight_tick_row {
    std::string_view entry, key;
    bool sight_ticks::*tick;
};

/// In the order of the menu.
std::span<const sight_tick_row> sight_tick_rows();

}  // namespace kvt
