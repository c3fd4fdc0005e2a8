#include "output/cnc/cnc_files.hpp"

#include "output/cnc/port_cnc.hpp"
#include "output/cnc/rotor_cnc.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

template <void write(const file_source&, port_side, text_lines&), port_side side>
void write_port(const file_source& source, text_lines& text) {
    write(source, side, text);
}

constexpr port_side INLET = port_side::inlet;
constexpr port_side OUTLET = port_side::outlet;

constexpr std::array<cnc_file, CNC_FILE_COUNT> FILES = {{
    {"inner_xy", "inner_rot_xy_checkbox", write_inner_xy, false, {}},
    {"inner_offset", "inner_rot_xy_tool_checkbox", write_inner_offset, true, {}},
    {"inner_offset_checked", "inner_rot_xy_checked_checkbox", write_inner_offset_checked, true, {}},
    {"inner_lathe", "inner_rot_xc_lathe", write_inner_lathe, false, {}},
    {"outer_xy", "outer_rot_xy_checkbox", write_outer_xy, false, {}},
    {"outer_offset", "outer_rot_xy_tool_checkbox", write_outer_offset, true, {}},
    {"outer_gcode", "outer_rot_gcodes_checkbox", write_outer_gcode, false, {}},
    {"outer_lathe", "outer_rot_xc_lathe", write_outer_lathe, false, {}},
    {"inlet_xy", "inlet_port_xy_checkbox", write_port<write_port_xy, INLET>, false, INLET},
    {"inlet_pocket", "inlet_port_xy_tool_checkbox", write_port<write_port_pocket, INLET>, true,
     INLET},
    {"inlet_gcode", "inlet_port_gcodes_checkbox", write_port<write_port_gcode, INLET>, false,
     INLET},
    {"outlet_xy", "outlet_port_xy_checkbox", write_port<write_port_xy, OUTLET>, false, OUTLET},
    {"outlet_pocket", "outlet_port_xy_tool_checkbox", write_port<write_port_pocket, OUTLET>, true,
     OUTLET},
    {"outlet_gcode", "outlet_port_gcode_checkbox", write_port<write_port_gcode, OUTLET>, false,
     OUTLET},
}};

static_assert(FILES[INNER_OFFSET].name == "inner_offset" &&
              FILES[INNER_OFFSET_CHECKED].name == "inner_offset_checked" &&
              FILES[OUTER_OFFSET].name == "outer_offset" &&
              FILES[INLET_POCKET].name == "inlet_pocket" &&
              FILES[OUTLET_POCKET].name == "outlet_pocket");

}  // namespace

std::span<const cnc_file> cnc_files() {
    return FILES;
}

const cnc_file* find_cnc_file(std::string_view name) {
    const auto found = std::ranges::find(FILES, name, &cnc_file::name);
    return found == FILES.end() ? nullptr : &*found;
}

}  // namespace kvt
