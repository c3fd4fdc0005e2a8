// A whole design with its ports, and the CNC files written from it into memory.
#pragma once

#include "app/files/cnc_output.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "support/open_design.hpp"

#include <string>
#include <vector>

namespace kvt {

/// Opens a design of tests/data/designs, calculates its profiles and designs its ports.
inline program design_with_ports(const std::string& name) {
    program kavetta = opened_design(name);
    scripted_user person;
    calculate_profiles(kavetta, person);
    design_ports(kavetta, person);
    return kavetta;
}

/// The bytes of a CNC file, by its name. A run-time failure passes through.
inline std::string cnc_bytes(const program& kavetta, std::string_view name) {
    text_lines text;
    find_cnc_file(name)->write(source_of(kavetta), text);
    return text.bytes();
}

}  // namespace kvt
