#include "output/cnc/port_cnc.hpp"

#include "output/cnc/cnc_heads.hpp"
#include "output/cnc/contour_gap.hpp"
#include "output/cnc/pocket_path.hpp"
#include "output/cnc/port_gcode.hpp"

#include <algorithm>
#include <string>

namespace kvt {

namespace {

std::string content_row(port_side side, std::string_view file) {
    return (side == port_side::inlet ? "inlet_" : "outlet_") + std::string(file);
}

std::vector<point2> contour_of(const port_params& ports, port_side side, section_kind kind) {
    switch (kind) {
        case section_kind::groove:
            return groove_contour(ports);
        case section_kind::shadow:
            return shadow_contour(port_contour(ports, side));
        case section_kind::lower:
        case section_kind::upper:
            break;
    }
    return port_contour(ports, side);
}

pocket_shape pocket_of(const file_source& source, port_side side, section_kind kind) {
    const port_params& ports = source.ports;
    pocket_shape pocket;
    pocket.outline = contour_of(ports, side, kind);
    if (kind == section_kind::groove) {
        const groove_shape& groove = ports.groove_built;
        pocket.centre = {-groove.shift, 0.0};
        pocket.inner_r = groove.inner_r;
        pocket.outer_r = groove.outer_r;
        pocket.fillet_r = groove.f;
        pocket.tool_radius = source.unit.half_to_mm(source.choices.groove_tool_diameter);
        return pocket;
    }
    const port_shape& port = ports.of(side).built;
    pocket.inner_r = port.R;
    pocket.outer_r = port.Q;
    pocket.fillet_r = port.f;
    pocket.tool_radius = source.unit.half_to_mm(source.choices.tool_diameter);
    return pocket;
}

/// The sections of a file: without a groove that the last run of Design Ports did not finish, or
/// that this file leaves out.
std::vector<port_section> sections_of(const file_source& source, port_side side, bool with_groove) {
    entries boxes = source.boxes;
    if (!with_groove || !source.ports.has_groove) {
        boxes.metering_groove = "0";
    }
    return port_sections(boxes, side);
}

tool_contour moves_of(const port_params& ports, port_side side, section_kind kind) {
    return kind == section_kind::groove ? groove_moves(ports)
                                        : port_moves(ports, side, kind == section_kind::shadow);
}

std::vector<circle> circles_of(const port_params& ports, port_side side, section_kind kind) {
    return kind == section_kind::groove ? groove_circles(ports)
                                        : port_circles(ports, side, kind == section_kind::shadow);
}

void add_gcode_section(const file_source& source, port_side side, section_kind kind,
                       cnc_lines& lines) {
    lines.xy(point2{});
    const tool_contour contour = moves_of(source.ports, side, kind);
    lines.feed_g01(contour.start);
    lines.comment("tool_down", "");
    for (const tool_move& move : contour.moves) {
        lines.move(move);
    }
    lines.comment("tool_up", "");
}

}  // namespace

void write_port_xy(const file_source& source, port_side side, text_lines& text) {
    cnc_lines lines(text, source);
    const std::vector<port_section> sections = sections_of(source, side, true);
    add_port_preamble(
        lines, source,
        {.content = content_row(side, "xy"), .section_count = static_cast<int>(sections.size())});
    for (const port_section& section : sections) {
        add_section_head(lines, source, side, section, section_file::xy);
        const std::vector<point2> contour = contour_of(source.ports, side, section.kind);
        lines.xy(contour);
        lines.xy(contour.empty() ? point2{} : contour.front());
    }
}

void write_port_pocket(const file_source& source, port_side side, text_lines& text) {
    cnc_lines lines(text, source);
    const std::vector<port_section> sections =
        sections_of(source, side, !source.choices.leaves_out_groove_pocket);
    add_port_preamble(lines, source,
                      {.content = content_row(side, "pocket"),
                       .section_count = static_cast<int>(sections.size()),
                       .pocket = true});
    for (const port_section& section : sections) {
        add_section_head(lines, source, side, section, section_file::pocket);
        lines.xy(pocket_path(pocket_of(source, side, section.kind)));
    }
}

double port_gcode_gap(const file_source& source, port_side side) {
    double largest = 0.0;
    for (const port_section& section : sections_of(source, side, true)) {
        const std::vector<point2> outline = contour_of(source.ports, side, section.kind);
        if (!outline.empty()) {
            const tool_contour moves = moves_of(source.ports, side, section.kind);
            const std::vector<circle> circles = circles_of(source.ports, side, section.kind);
            largest = std::max(largest, contour_gap(moves, outline, circles));
        }
    }
    return largest;
}

void write_port_gcode(const file_source& source, port_side side, text_lines& text) {
    cnc_lines lines(text, source);
    const std::vector<port_section> sections = sections_of(source, side, true);
    add_port_preamble(lines, source,
                      {.content = content_row(side, "gcode"),
                       .section_count = static_cast<int>(sections.size()),
                       .gcode = true});
    for (const port_section& section : sections) {
        add_section_head(lines, source, side, section, section_file::gcode);
        add_gcode_section(source, side, section.kind, lines);
    }
}

}  // namespace kvt
