// What a CNC file is written from: the records, the boxes, and the choices of the dialog.
#pragma once

#include "core/app_state.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"

#include <cstdint>
#include <string_view>

namespace kvt {

/// What the dialog leaves behind for the writers. Diameters are in the unit of the entries, as
/// typed.
struct cnc_choices {
    std::int16_t cnc_res_digits =
        0;  ///< decimals of every coordinate, 2 .. 6; 0 until a resolution was chosen
    double tool_diameter = 0.0;
    double groove_tool_diameter = 0.0;
    bool Opp_Plot = false;  ///< clockwise; heard by the X/Y files of the inner rotor only
    bool leaves_out_groove_pocket =
        false;  ///< the pocket file has no section of the groove: there is no tool for it
};

/// All of it by reference; the writers change none of it.
struct cnc_source {
    const design_params& design;
    const rotor_profiles& rotors;
    const port_params& ports;
    const entries& boxes;
    const cnc_choices& choices;
    std::string_view project_name;
    std::int16_t language = ENGLISH;
    bool inches = false;
};

/// A diameter as typed becomes a radius in mm.
double cutter_radius_mm(double diameter, bool inches);

}  // namespace kvt
