// The comment lines at the head of a CNC file, and of the sections of a port's file: lower housing,
// metering groove, upper housing, shadow port.
// Source: docs/file-formats.md, "CNC files (`.cnc`)".
#pragma once

#include "output/cnc/cnc_lines.hpp"
#include "output/port_contours.hpp"

#include <vector>

namespace kvt {

/// What the head of a rotor file says.
struct rotor_preamble {
    std::string_view content;  ///< row of the first line
    bool outer = false;        ///< the origin is the outer rotor's centre
    bool has_cutter = false;   ///< names the cutter radius, in the unit as typed
    bool lathe = false;
    std::string_view checked = {};  ///< row of the last line: what was checked
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

enum class section_kind { lower, groove, upper, shadow };

struct port_section {
    section_kind kind;
    int number;  ///< in its head
};

/// The sections in the order of the file: the lower housing, the groove (outlet only), the upper
/// housing of a double-sided port, the shadow port. The outlet counts them; Kept: on the inlet
/// every further one is section 2; cnc_lines_test holds it.
std::vector<port_section> port_sections(const entries& boxes, port_side side);

/// Which file a head stands in.
enum class section_file { xy, pocket, gcode };

/// The comment lines at the head of a section. The groove's depth stands there in the unit of the
/// file.
void add_section_head(cnc_lines& lines, const file_source& source, port_side side,
                      const port_section& section, section_file file);

}  // namespace kvt
