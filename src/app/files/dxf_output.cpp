#include "app/files/dxf_output.hpp"

#include "app/files/saved_text.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "core/text_table.hpp"
#include "output/dxf/dxf_files.hpp"

#include <string>

namespace kvt {

namespace {

std::string text_of(const program& kavetta, const std::string& name) {
    return std::string(row_text(*find_caption("dxf", name), kavetta.app_state.language));
}

file_dialog dxf_dialog(const program& kavetta, dxf_file file) {
    const std::string title = text_of(kavetta, std::string(dxf_file_name(file)) + "_title");
    return save_text_dialog(title, text_of(kavetta, "filter"), "dxf");
}

}  // namespace

std::string_view dxf_file_name(dxf_file file) {
    constexpr std::string_view NAMES[] = {"inner", "outer", "inlet", "outlet", "groove"};
    return NAMES[static_cast<std::size_t>(file)];
}

void append_dxf_file(text_lines& out, dxf_file file, const program& kavetta) {
    const bool inches = kavetta.app_state.drawing_units == INCHES;
    switch (file) {
        case dxf_file::inner:
            return write_dxf_inner_rotor(out, kavetta.rotor_profiles, inches);
        case dxf_file::outer:
            return write_dxf_outer_rotor(out, kavetta.entries);
        case dxf_file::inlet:
            return write_dxf_inlet_port(out, kavetta.port_params, inches);
        case dxf_file::outlet:
            return write_dxf_outlet_port(out, kavetta.port_params, inches);
        case dxf_file::groove:
            break;
    }
    write_dxf_metering_groove(out, kavetta.port_params, inches);
}

void save_dxf_file(const program& kavetta, user& person, dxf_file file) {
    ask_and_save_text(
        kavetta, person, dxf_dialog(kavetta, file),
        [&](text_lines& text, const std::string&) { append_dxf_file(text, file, kavetta); });
}

void open_dxf_menu(program& kavetta) {
    kavetta.enabling.mnudxfmetering = has_metering_groove(kavetta);
}

}  // namespace kvt
