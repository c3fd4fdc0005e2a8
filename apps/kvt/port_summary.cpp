#include "kvt/port_summary.hpp"

#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/report_texts.hpp"
#include "ports/port_fields.hpp"

#include <array>
#include <vector>

namespace kvt {

namespace {

using rows = std::vector<std::vector<std::string>>;

/// A value that both ports have, under the caption of the Port Design form.
struct port_row {
    const char* caption;
    double inlet;
    double outlet;
};

std::array<port_row, 4> angles_of(const port_params& ports) {
    const auto row = [&](const char* caption, std::size_t corner) {
        return port_row{caption, ports.inlet.corners[corner].angle_deg,
                        ports.outlet.corners[corner].angle_deg};
    };
    return {row("Label2", START_INNER), row("Label3", START_OUTER), row("Label4", END_INNER),
            row("Label5", END_OUTER)};
}

std::array<port_row, 3> radii_of(const port_params& ports) {
    return {{{"Label13", ports.inlet.inner_r, ports.outlet.inner_r},
             {"Label14", ports.inlet.outer_r, ports.outlet.outer_r},
             {"Label1", ports.port_radius, ports.port_radius}}};
}

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
    for (const port_row& row : angles_of(ports)) {
        table.lines.push_back(
            {table.caption(row.caption), degrees(row.inlet), degrees(row.outlet)});
    }
    for (const port_row& row : radii_of(ports)) {
        table.lines.push_back(
            {table.caption(row.caption), table.length(row.inlet), table.length(row.outlet)});
    }
}

/// "X 15.103  Y -5.2819" of a corner's fillet centre, as it lies in the drawing.
std::string centre_text(const summary& table, const port_fields& port, std::size_t corner) {
    const point2 c = port.record(table.kavetta.port_params).corners[corner].c;
    const point2 centre = port.mirrored ? mirrored(c) : c;
    return "X " + table.length(centre.x) + "  Y " + table.length(centre.y);
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
