#include "output/written_files.hpp"

#include "output/cnc/port_cnc.hpp"
#include "output/cnc/rotor_cnc.hpp"
#include "output/data/data_files.hpp"
#include "output/dxf/dxf_files.hpp"
#include "output/dxf/exact_dxf_files.hpp"
#include "output/step/exact_step_files.hpp"
#include "output/step/step_files.hpp"
#include "output/stl/stl_files.hpp"
#include "output/svg/svg_files.hpp"
#include "ports/port_report.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

using enum file_group;
using enum file_needs;
using enum file_choice;

constexpr std::string_view EXACT = "_exact";

constexpr auto GROUPS = std::to_array<file_group_row>({
    {cnc, "cnc", "CNC", "cnc", "cnc"},
    {dxf, "dxf", "DXF", "dxf", "dxf"},
    {step, "step", "STEP", "step", "stp"},
    // Their names are fixed: the simulation reads them.
    {gt, "gt", "STEP", "", "stp", by_flag, "STEP files of the simulation exchange"},
    {report, "report", "text", "", "txt", always},
    {data, "data", "text", "data", "txt", by_flag, "data files of the performance"},
    {step_exact, "step-exact", "exact STEP", "step_exact", "stp", only_by_name, "", EXACT},
    {dxf_exact, "dxf-exact", "exact DXF", "dxf_exact", "dxf", only_by_name, "", EXACT},
    {svg, "svg", "SVG", "svg", "svg", only_by_name},
    {stl, "stl", "STL", "stl", "stl", only_by_name},
});

// Adapters from a row's writer to the writers that take less.

template <void write(const file_source&, port_side, text_lines&), port_side side>
void of_port(const file_source& source, text_lines& text) {
    write(source, side, text);
}

template <void write(text_lines&, const port_params&, const length_unit&)>
void dxf_port(const file_source& source, text_lines& text) {
    write(text, source.ports, source.unit);
}

void dxf_of_inner(const file_source& source, text_lines& text) {
    write_dxf_inner_rotor(text, source.rotors, source.unit);
}

void dxf_of_outer(const file_source& source, text_lines& text) {
    write_dxf_outer_rotor(text, source.boxes, source.boxes_unit.mm / source.unit.mm);
}

step_header header_of(const file_source& source) {
    return {source.path, source.date, source.version};
}

template <void write(text_lines&, const step_header&, const design_params&, const rotor_profiles&)>
void step_rotors(const file_source& source, text_lines& text) {
    write(text, header_of(source), source.design, source.rotors);
}

template <void write(text_lines&, const step_header&, const design_params&, const port_params&,
                     const entries&)>
void step_ports(const file_source& source, text_lines& text) {
    write(text, header_of(source), source.design, source.ports, source.boxes);
}

void write_port_report(const file_source& source, text_lines& text) {
    for (const std::string& line :
         port_report_lines(source.ports, source.design,
                           {source.version, source.date, std::string(source.project_name)})) {
        text.line(line);
    }
}

template <data_file file>
void performance_data(const file_source& source, text_lines& text) {
    write_data_file(file, source, text);
}

constexpr port_side IN = port_side::inlet;
constexpr port_side OUT = port_side::outlet;
constexpr bool TOOL = true;

constexpr auto FILES = std::to_array<written_file>({
    {cnc, "inner_xy", "inner_rot_xy_checkbox", profiles, write_inner_xy},
    {cnc, "inner_offset", "inner_rot_xy_tool_checkbox", profiles, write_inner_offset, TOOL,
     inner_offset_notice},
    {cnc, "inner_offset_checked", "inner_rot_xy_checked_checkbox", profiles,
     write_inner_offset_checked, TOOL},
    {cnc, "inner_lathe", "inner_rot_xc_lathe", profiles, write_inner_lathe},
    {cnc, "outer_xy", "outer_rot_xy_checkbox", profiles, write_outer_xy},
    {cnc, "outer_offset", "outer_rot_xy_tool_checkbox", profiles, write_outer_offset, TOOL},
    {cnc, "outer_offset_checked", "outer_rot_xy_checked_checkbox", profiles,
     write_outer_offset_checked, TOOL},
    {cnc, "outer_gcode", "outer_rot_gcodes_checkbox", profiles, write_outer_gcode},
    {cnc, "outer_gcode_checked", "outer_rot_gcodes_checked_checkbox", profiles,
     write_outer_gcode_checked},
    {cnc, "outer_lathe", "outer_rot_xc_lathe", profiles, write_outer_lathe},
    {cnc, "inlet_xy", "inlet_port_xy_checkbox", inlet, of_port<write_port_xy, IN>},
    {cnc, "inlet_pocket", "inlet_port_xy_tool_checkbox", inlet, of_port<write_port_pocket, IN>,
     TOOL},
    {cnc, "inlet_gcode", "inlet_port_gcodes_checkbox", inlet, of_port<write_port_gcode, IN>},
    {cnc, "outlet_xy", "outlet_port_xy_checkbox", outlet, of_port<write_port_xy, OUT>},
    {cnc, "outlet_pocket", "outlet_port_xy_tool_checkbox", outlet, of_port<write_port_pocket, OUT>,
     TOOL},
    {cnc, "outlet_gcode", "outlet_port_gcode_checkbox", outlet, of_port<write_port_gcode, OUT>},

    {dxf, "inner", "mnudxfinner", profiles, dxf_of_inner},
    {dxf, "outer", "mnudxfouter", profiles, dxf_of_outer},
    {dxf, "inlet", "mnudxfinletport", inlet, dxf_port<write_dxf_inlet_port>},
    {dxf, "outlet", "mnudxfoutletport", outlet, dxf_port<write_dxf_outlet_port>},
    {dxf, "groove", "mnudxfmetering", groove, dxf_port<write_dxf_metering_groove>},

    {step, "inner", "mnustepinner", profiles, step_rotors<write_step_inner_rotor>},
    {step, "outer", "mnustepouter", profiles, step_rotors<write_step_outer_rotor>},
    {step, "assembly", "mnustepassy", profiles, step_rotors<write_step_assembly>},
    {step, "ports", "mnustepports", any_port, step_ports<write_step_ports>},

    {gt, "inner_rotor_GT", "", profiles, step_rotors<write_step_inner_rotor>},
    {gt, "outer_rotor_GT", "", profiles, step_rotors<write_step_outer_rotor>},
    {gt, "in_port_GT", "", inlet, step_ports<write_step_inlet_port>},
    {gt, "out_port_GT", "", outlet, step_ports<write_step_outlet_port>},

    {report, "port_radius_coordinates", "", outlet, write_port_report},

    // One entry of the menu writes all five.
    {data, "perf_flow", "", performance, performance_data<data_file::flow>},
    {data, "perf_torque", "", performance, performance_data<data_file::torque>},
    {data, "perf_contact", "", performance, performance_data<data_file::contact>},
    {data, "perf_efficiency", "", performance, performance_data<data_file::efficiency>},
    {data, "perf_volumetric", "", performance, performance_data<data_file::volumetric>},

    {step_exact, "inner", "mnuexactinner", profiles, write_exact_step_inner},
    {step_exact, "outer", "mnuexactouter", profiles, write_exact_step_outer},
    {step_exact, "assembly", "mnuexactassy", profiles, write_exact_step_assembly},
    {step_exact, "ports", "mnuexactports", any_port, write_exact_step_ports},

    {dxf_exact, "inner", "mnudxfexactinner", profiles, write_exact_dxf_inner},
    {dxf_exact, "inner_polyline", "mnudxfexactpolyline", profiles, write_exact_dxf_inner_polyline},
    {dxf_exact, "outer", "mnudxfexactouter", profiles, write_exact_dxf_outer},
    {dxf_exact, "inlet", "mnudxfexactinlet", inlet, write_exact_dxf_inlet},
    {dxf_exact, "outlet", "mnudxfexactoutlet", outlet, write_exact_dxf_outlet},
    {dxf_exact, "groove", "mnudxfexactgroove", groove, write_exact_dxf_groove},
    {dxf_exact, "pair", "mnudxfexactpair", profiles, write_exact_dxf_pair},

    {svg, "inner", "mnusvginner", profiles, write_svg_inner},
    {svg, "outer", "mnusvgouter", profiles, write_svg_outer},
    {svg, "inlet", "mnusvginlet", inlet, write_svg_inlet},
    {svg, "outlet", "mnusvgoutlet", outlet, write_svg_outlet},
    {svg, "groove", "mnusvggroove", groove, write_svg_groove},
    {svg, "pair", "mnusvgpair", profiles, write_svg_pair},
    {svg, "ports", "mnusvgports", any_port, write_svg_ports},

    {stl, "inner", "mnustlinner", profiles, write_stl_inner},
    {stl, "outer", "mnustlouter", profiles, write_stl_outer},
    {stl, "ports", "mnustlports", any_port, write_stl_ports},
});

}  // namespace

std::span<const file_group_row> file_groups() {
    return GROUPS;
}

const file_group_row& row_of(file_group group) {
    return *std::ranges::find(GROUPS, group, &file_group_row::group);
}

std::span<const written_file> written_files() {
    return FILES;
}

std::span<const written_file> files_of(file_group group) {
    // Not equal_range: Clang 14 refuses the range that it answers.
    return {std::ranges::lower_bound(FILES, group, {}, &written_file::group),
            std::ranges::upper_bound(FILES, group, {}, &written_file::group)};
}

const written_file* find_file(file_group group, std::string_view name) {
    const std::span<const written_file> files = files_of(group);
    const auto found = std::ranges::find(files, name, &written_file::name);
    return found == files.end() ? nullptr : &*found;
}

std::string file_name(const written_file& file) {
    const file_group_row& group = row_of(file.group);
    return std::string(file.name) + std::string(group.mark) + "." + std::string(group.extension);
}

bool is_there(file_needs needs, const port_params& ports, const entries& boxes) {
    const bool has_inlet = ports.inlet.last > 0;
    const bool has_outlet = ports.outlet.last > 0;
    switch (needs) {
        case inlet:
            return has_inlet;
        case outlet:
            return has_outlet;
        case any_port:
            return has_inlet || has_outlet;
        case groove:
            return is_ticked(boxes.metering_groove) && ports.groove_last > 0;
        case profiles:
        case performance:
            break;
    }
    return true;
}

}  // namespace kvt
