// The sections of a port's CNC file: lower housing, metering groove, upper housing, shadow port.
#pragma once

#include "output/cnc/cnc_lines.hpp"
#include "output/port_contours.hpp"

#include <vector>

namespace kvt {

enum class section_kind { lower, groove, upper, shadow };

struct port_section {
    section_kind kind;
    int number;  ///< in its head
};

/// The sections in the order of the file: the lower housing, the groove (outlet only), the upper
/// housing of a double-sided port, the shadow port. The outlet counts them; Kept: on the inlet
/// every further one is section 2.
std::vector<port_section> port_sections(const entries& boxes, port_side side);

/// Which file a head stands in.
enum class section_file { xy, pocket, gcode };

/// The comment lines at the head of a section. The groove's depth stands there in the unit of the
/// file.
void add_section_head(cnc_lines& lines, const file_source& source, port_side side,
                      const port_section& section, section_file file);

}  // namespace kvt
