// The report of the corner centres for the workshop, port_radius_coordinates.txt, as lines.
// Source: docs/formulas/ports.md.
#pragma once

#include "core/design_params.hpp"
#include "ports/port_params.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// What the report takes from outside the records.
struct port_report_head {
    std::string version;  ///< "2021.1.1"
    std::string date;     ///< in the form in which it shall stand there
    std::string project_name;
};

/// The 24 lines, UTF-8: head, four fillet centres and three radii of each port. Millimetres in
/// 15-digit text whatever the unit of the entries. The y of the inlet's centres is negated, as the
/// inlet lies below the x axis.
std::vector<std::string> port_report_lines(const port_params& ports, const design_params& design,
                                           const port_report_head& head);

}  // namespace kvt
