// The STEP files (ISO 10303-21, AP203): header, bodies, end. All lengths are millimetres, in
// imperial projects too.
// Source: docs/file-formats.md, "STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"

#include <string>

namespace kvt {

/// What changes from run to run. Texts are UTF-8; an apostrophe in them is doubled in the file.
struct step_header {
    std::string file_name;  ///< as the save dialog gave it
    std::string date;       ///< short form of the locale
    std::string version;    ///< "2021.1.1"
};

/// One rotor. Each of these appends a whole file to the text; a run-time failure leaves the lines
/// before it.
void write_step_inner_rotor(text_lines& out, const step_header& header, const design_params& design,
                            const rotor_profiles& rotors);
void write_step_outer_rotor(text_lines& out, const step_header& header, const design_params& design,
                            const rotor_profiles& rotors);
/// Both rotors as two separate solids, entity numbers of the outer one raised by 1000000.
void write_step_assembly(text_lines& out, const step_header& header, const design_params& design,
                         const rotor_profiles& rotors);
/// Every body that the ports have; none leaves a file without bodies.
void write_step_ports(text_lines& out, const step_header& header, const design_params& design,
                      const port_params& ports, const entries& boxes);
/// The lower body of one port for the simulation exchange; that of the outlet keeps its offset.
void write_step_inlet_port(text_lines& out, const step_header& header, const design_params& design,
                           const port_params& ports, const entries& boxes);
void write_step_outlet_port(text_lines& out, const step_header& header, const design_params& design,
                            const port_params& ports, const entries& boxes);

}  // namespace kvt
