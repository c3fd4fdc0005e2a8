// desktop_palettes: the colours that widespread desktops give a program, light and dark.
#pragma once

#include <QPalette>

#include <vector>

namespace kvt {

struct desktop_palette {
    const char* name;  ///< without blanks, as in the names of the pictures
    QPalette palette;
};

/// The default schemes of Plasma (Breeze) and GNOME (Adwaita) with the roles that the desktop sets
/// and no others: what it leaves alone, e.g. the placeholder colour, stays that of a light palette.
std::vector<desktop_palette> desktop_palettes();

}  // namespace kvt
