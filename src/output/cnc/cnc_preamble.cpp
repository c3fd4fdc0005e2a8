#include "output/cnc/cnc_preamble.hpp"

#include "base/number_text.hpp"

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
    if (head.side_checked) {
        lines.comment("side_checked", "");
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

}  // namespace kvt
