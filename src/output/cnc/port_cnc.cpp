#include "output/cnc/port_cnc.hpp"

#include "output/cnc/cnc_preamble.hpp"
#include "output/cnc/pocket_path.hpp"
#include "output/cnc/port_gcode.hpp"
#include "output/cnc/port_sections.hpp"

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
    const bool inlet = side == port_side::inlet;
    pocket_shape pocket;
    pocket.outline = contour_of(ports, side, kind);
    if (kind == section_kind::groove) {
        pocket.centre = {-source.design.ecc / 2.0, 0.0};
        pocket.inner_r = ports.groove_inner_r;
        pocket.outer_r = ports.groove_outer_r;
        pocket.fillet_r = ports.groove_corner_r;
        pocket.tool_radius = source.unit.half_to_mm(source.choices.groove_tool_diameter);
        return pocket;
    }
    pocket.inner_r = inlet ? ports.inlet_inner_r : ports.outlet_inner_r;
    pocket.outer_r = inlet ? ports.inlet_outer_r : ports.outlet_outer_r;
    pocket.fillet_r = ports.port_radius;
    pocket.tool_radius = source.unit.half_to_mm(source.choices.tool_diameter);
    return pocket;
}

std::vector<port_section> pocket_sections(const file_source& source, port_side side) {
    entries boxes = source.boxes;
    if (source.choices.leaves_out_groove_pocket) {
        boxes.metering_groove = "0";
    }
    return port_sections(boxes, side);
}

void add_move(cnc_lines& lines, const tool_move& move) {
    switch (move.kind) {
        case move_kind::clockwise_g02:
            lines.arc_cw_g02(move.end, move.radius);
            return;
        case move_kind::counterclockwise_g03:
            lines.arc_ccw_g03(move.end, move.radius);
            return;
        case move_kind::line_g01:
            break;
    }
    lines.feed_g01(move.end);
}

void add_gcode_section(const file_source& source, port_side side, section_kind kind,
                       cnc_lines& lines) {
    lines.xy(point2{});
    const tool_contour contour = kind == section_kind::groove
                                     ? groove_moves(source.ports, source.design)
                                     : port_moves(source.ports, side, kind == section_kind::shadow);
    lines.feed_g01(contour.start);
    lines.comment("tool_down", "");
    for (const tool_move& move : contour.moves) {
        add_move(lines, move);
    }
    lines.comment("tool_up", "");
}

}  // namespace

void write_port_xy(const file_source& source, port_side side, text_lines& text) {
    cnc_lines lines(text, source);
    const std::vector<port_section> sections = port_sections(source.boxes, side);
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
    const std::vector<port_section> sections = pocket_sections(source, side);
    add_port_preamble(lines, source,
                      {.content = content_row(side, "pocket"),
                       .section_count = static_cast<int>(sections.size()),
                       .pocket = true});
    for (const port_section& section : sections) {
        add_section_head(lines, source, side, section, section_file::pocket);
        lines.xy(pocket_path(pocket_of(source, side, section.kind)));
    }
}

void write_port_gcode(const file_source& source, port_side side, text_lines& text) {
    cnc_lines lines(text, source);
    const std::vector<port_section> sections = port_sections(source.boxes, side);
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
