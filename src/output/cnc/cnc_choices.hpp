// What the CNC output dialog leaves behind for the writers.
#pragma once

#include <cstdint>

namespace kvt {

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
