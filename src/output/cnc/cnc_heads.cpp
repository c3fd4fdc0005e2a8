#include "output/cnc/cnc_heads.hpp"

#include "base/number_text.hpp"

#include <string>

namespace kvt {

namespace {

void add_project(cnc_lines& lines, const file_source& source, std::string_view row) {
    lines.comment(row, std::string(source.project_name) + ".//");
}

void add_cutter_radius(cnc_lines& lines, const file_source& source) {
    lines.comment("cutter_radius", number_text(source.choices.tool_diameter / 2.0) + ".//");
}

void add_units(cnc_lines& lines, const file_source& source) {
    lines.comment(source.unit.cnc_comment, "");
}

std::string_view side_name(port_side side) {
    return side == port_side::inlet ? "inlet" : "outlet";
}

/// The row of the head's text behind the section's number.
std::string head_row(port_side side, section_kind kind, section_file file) {
    const std::string port(side_name(side));
    const std::string_view gcode = file == section_file::gcode ? "_gcode" : "";
    switch (kind) {
        case section_kind::groove:
            return "groove" + std::string(gcode);
        case section_kind::shadow:
            return port + "_shadow" + std::string(gcode);
        case section_kind::upper:
            return port + "_upper";
        case section_kind::lower:
            break;
    }
    return port + "_lower";
}

void add_groove_notes(cnc_lines& lines, const file_source& source, section_file file) {
    if (file == section_file::pocket) {
        lines.comment("groove_cutter_radius",
                      number_text(source.choices.groove_tool_diameter / 2.0) + "//");
    }
    if (file != section_file::gcode) {
        lines.comment("groove_depth",
                      number_text(source.unit.from_mm(source.ports.groove_depth_mm)) + "//");
    }
}

}  // namespace

void add_rotor_preamble(cnc_lines& lines, const file_source& source, const rotor_preamble& head) {
    lines.comment(head.content, "");
    add_project(lines, source, "rotor_of_project");
    if (head.has_cutter) {
        add_cutter_radius(lines, source);
    }
    if (head.lathe) {
        lines.comment("for_lathe", "");
    }
    lines.comment(head.outer ? "origin_outer" : "origin_inner", "");
    lines.comment(head.outer ? "origin_outer_end" : "origin_inner_end", "");
    add_units(lines, source);
    if (!head.checked.empty()) {
        lines.comment(head.checked, "");
    }
}

void add_port_preamble(cnc_lines& lines, const file_source& source, const port_preamble& head) {
    lines.comment(head.content, "");
    add_project(lines, source, "ports_of_project");
    if (head.pocket) {
        add_cutter_radius(lines, source);
    }
    lines.comment(head.pocket ? "origin_pocket" : "origin_inner", "");
    lines.comment(head.pocket ? "origin_pocket_end" : "origin_inner_end", "");
    add_units(lines, source);
    lines.comment("file_contains", number_text(head.section_count) +
                                       std::string(cnc_text("sections", source.language)) +
                                       (head.gcode ? "" : "//"));
}

std::vector<port_section> port_sections(const entries& boxes, port_side side) {
    const bool inlet = side == port_side::inlet;
    std::vector<port_section> sections{{section_kind::lower, 1}};
    const auto add = [&](section_kind kind) {
        sections.push_back({kind, inlet ? 2 : static_cast<int>(sections.size()) + 1});
    };
    if (!inlet && is_ticked(boxes.metering_groove)) {
        add(section_kind::groove);
    }
    if (is_ticked(inlet ? boxes.inlet_double_sided : boxes.outlet_double_sided)) {
        add(section_kind::upper);
    }
    if (is_ticked(boxes.shadow_ports)) {
        add(section_kind::shadow);
    }
    return sections;
}

void add_section_head(cnc_lines& lines, const file_source& source, port_side side,
                      const port_section& section, section_file file) {
    const std::string_view text = cnc_text(head_row(side, section.kind, file), source.language);
    lines.comment("section", number_text(section.number) + std::string(text));
    if (section.kind == section_kind::groove) {
        add_groove_notes(lines, source, file);
    }
    if (section.kind == section_kind::shadow) {
        lines.comment(file == section_file::gcode ? "shadow_depth_gcode" : "shadow_depth", "");
    }
}

}  // namespace kvt
