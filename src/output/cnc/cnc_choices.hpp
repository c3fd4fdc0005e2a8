// What the CNC output dialog leaves behind for the writers.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace kvt {

/// What the user sets in the dialog, as typed.
struct cnc_entries {
    std::set<std::string, std::less<>> ticked;  ///< names of CNC files
    bool Opp_Plot = false;
    std::string toolsize, groovetooltext, machine_res_combo;

    friend bool operator==(const cnc_entries&, const cnc_entries&) = default;
};

/// Diameters are in the unit of the entries, as typed.
struct cnc_choices {
    std::int16_t cnc_res_digits =
        0;  ///< decimals of every coordinate, 2 .. 6; 0 until a resolution was chosen
    double tool_diameter = 0.0;
    double groove_tool_diameter = 0.0;
    bool Opp_Plot = false;  ///< clockwise; heard by the X/Y files of the inner rotor only
    bool leaves_out_groove_pocket =
        false;  ///< the pocket file has no section of the groove: there is no tool for it
};

}  // namespace kvt
