// The comment lines at the head of a CNC file.
#pragma once

#include "output/cnc/cnc_lines.hpp"

namespace kvt {

/// What the head of a rotor file says.
struct rotor_preamble {
    std::string_view content;  ///< row of the first line
    bool outer = false;        ///< the origin is the outer rotor's centre
    bool has_cutter = false;   ///< names the cutter radius, in the unit as typed
    bool lathe = false;
    bool side_checked = false;
};

void add_rotor_preamble(cnc_lines& lines, const file_source& source, const rotor_preamble& head);

/// What the head of a port file says.
struct port_preamble {
    std::string_view content;
    int section_count = 1;
    bool pocket = false;  ///< names the cutter radius
    bool gcode = false;   ///< the sections line has no closing slashes
};

void add_port_preamble(cnc_lines& lines, const file_source& source, const port_preamble& head);

}  // namespace kvt
