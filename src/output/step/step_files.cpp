#include "output/step/step_files.hpp"

#include "output/step/step_ports.hpp"
#include "output/step/step_rotors.hpp"

namespace kvt {

namespace {

/// The text between apostrophes, its own ones doubled.
std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) {
        result += c == '\'' ? "''" : std::string(1, c);
    }
    return result + "'";
}

void write_header(text_lines& out, const step_header& header) {
    out.line("ISO-10303-21;");
    out.line("HEADER;");
    out.line("FILE_DESCRIPTION (( 'STEP AP203' ),");
    out.line("    '1' );");
    out.line("FILE_NAME (" + quoted(header.file_name) + ",");
    out.line("    " + quoted(header.date) + ",");
    out.line("    ( '' ),");  // author
    out.line("    ( '' ),");  // organisation
    out.line("    '',");      // preprocessor
    out.line("    " + quoted("Kavetta V" + header.version) + ",");
    out.line("    '' );");  // authorisation
    out.line("FILE_SCHEMA (( 'CONFIG_CONTROL_DESIGN' ));");
    out.line("ENDSEC;");
    out.line("");
    out.line("DATA;");
}

void write_end(text_lines& out) {
    out.line("ENDSEC;");
    out.line("END-ISO-10303-21;");
}

void write_one_port(text_lines& out, const step_header& header, step_port port,
                    const design_params& design, const port_params& ports, const entries& boxes) {
    write_header(out, header);
    write_step_port(out, port, design, ports, boxes);
    write_end(out);
}

}  // namespace

void write_step_inner_rotor(text_lines& out, const step_header& header, const design_params& design,
                            const rotor_profiles& rotors) {
    write_header(out, header);
    write_step_inner_body(out, design, rotors, 0);
    write_end(out);
}

void write_step_outer_rotor(text_lines& out, const step_header& header, const design_params& design,
                            const rotor_profiles& rotors) {
    write_header(out, header);
    write_step_outer_body(out, design, rotors, 0);
    write_end(out);
}

void write_step_assembly(text_lines& out, const step_header& header, const design_params& design,
                         const rotor_profiles& rotors) {
    write_header(out, header);
    write_step_inner_body(out, design, rotors, 0);
    write_step_outer_body(out, design, rotors, STEP_BODY_OFFSET);
    write_end(out);
}

void write_step_ports(text_lines& out, const step_header& header, const design_params& design,
                      const port_params& ports, const entries& boxes) {
    write_header(out, header);
    for (const step_port port : STEP_PORTS) {
        write_step_port(out, port, design, ports, boxes);
    }
    write_end(out);
}

void write_step_inlet_port(text_lines& out, const step_header& header, const design_params& design,
                           const port_params& ports, const entries& boxes) {
    write_one_port(out, header, step_port::inlet_lower, design, ports, boxes);
}

void write_step_outlet_port(text_lines& out, const step_header& header, const design_params& design,
                            const port_params& ports, const entries& boxes) {
    write_one_port(out, header, step_port::outlet_lower, design, ports, boxes);
}

}  // namespace kvt
