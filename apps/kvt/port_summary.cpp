#include "kvt/port_summary.hpp"

#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/report_texts.hpp"
#include "ports/port_fields.hpp"

#include <vector>

namespace kvt {

namespace {

using rows = std::vector<std::vector<std::string>>;
using port_value = double port_params::*;

/// A value that both ports have, under the caption of the Port Design form.
struct port_row {
    const char* caption;
    port_value inlet;
    port_value outlet;
};

constexpr port_row ANGLES[] = {
    {"Label2", &port_params::inlet_start_inner_deg, &port_params::outlet_start_inner_deg},
    {"Label3", &port_params::inlet_start_outer_deg, &port_params::outlet_start_outer_deg},
    {"Label4", &port_params::inlet_end_inner_deg, &port_params::outlet_end_inner_deg},
    {"Label5", &port_params::inlet_end_outer_deg, &port_params::outlet_end_outer_deg},
};

constexpr port_row RADII[] = {
    {"Label13", &port_params::inlet_inner_r, &port_params::outlet_inner_r},
    {"Label14", &port_params::inlet_outer_r, &port_params::outlet_outer_r},
    {"Label1", &port_params::port_radius, &port_params::port_radius},
};

struct summary {
    const program& kavetta;
    rows lines;

    std::string caption(const char* name) const {
        return caption_text("portdes", name, kavetta.app_state.language);
    }
    std::string length(double millimetres) const {
        return length_text(kavetta.app_state, millimetres);
    }
};

std::string degrees(double angle) {
    return rounded(angle) + "°";
}

void add_angles_and_radii(summary& table) {
    const port_params& ports = table.kavetta.port_params;
    table.lines.push_back({"", table.caption("Frame2"), table.caption("Frame3")});
    for (const port_row& row : ANGLES) {
        table.lines.push_back(
            {table.caption(row.caption), degrees(ports.*row.inlet), degrees(ports.*row.outlet)});
    }
    for (const port_row& row : RADII) {
        table.lines.push_back({table.caption(row.caption), table.length(ports.*row.inlet),
                               table.length(ports.*row.outlet)});
    }
}

/// "X 15.103  Y -5.2819" of a corner's fillet centre, as it lies in the drawing.
std::string centre_text(const summary& table, const port_fields& port, std::size_t corner) {
    const point2 centre = port.corners[corner].c.get(table.kavetta.port_params);
    const double y = port.mirrored ? -centre.y : centre.y;
    return "X " + table.length(centre.x) + "  Y " + table.length(y);
}

void add_corners(summary& table) {
    const std::string caption =
        caption_text("kvt", "corner_centre", table.kavetta.app_state.language);
    for (std::size_t corner = 0; corner < inlet_fields().corners.size(); ++corner) {
        table.lines.push_back({caption + " " + std::to_string(corner + 1),
                               centre_text(table, inlet_fields(), corner),
                               centre_text(table, outlet_fields(), corner)});
    }
}

void add_groove(summary& table) {
    const port_params& ports = table.kavetta.port_params;
    table.lines.push_back({table.caption("metering_groove")});
    table.lines.push_back({table.caption("Label10"), "", degrees(ports.groove_length_deg)});
    for (const auto& [name, value] : {std::pair{"groove_path_radius", ports.groove_centre_r},
                                      std::pair{"groove_width", ports.groove_width_mm},
                                      std::pair{"groove_depth", ports.groove_depth_mm},
                                      std::pair{"groove_corner_radius", ports.groove_corner_r}}) {
        table.lines.push_back(
            {caption_text("kvt", name, table.kavetta.app_state.language), "", table.length(value)});
    }
}

}  // namespace

std::string port_summary(const program& kavetta) {
    summary table{kavetta, {}};
    add_angles_and_radii(table);
    add_corners(table);
    if (has_metering_groove(kavetta)) {
        add_groove(table);
    }
    return aligned_table(table.lines);
}

}  // namespace kvt
