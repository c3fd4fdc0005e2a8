// A whole design with its ports, and the CNC files written from it into memory.
#pragma once

#include "app/files/file_output.hpp"
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

/// The bytes of a file, by its group and name, as if it went to a path. A run-time failure passes
/// through.
inline std::string file_bytes(const program& kavetta, file_group group, std::string_view name,
                              const std::string& path = {}) {
    text_lines text;
    find_file(group, name)->write(source_of(kavetta, path), text);
    return text.bytes();
}

inline std::string cnc_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::cnc, name);
}

inline std::string dxf_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::dxf, name);
}

inline std::string step_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::step, name, "pump.stp");
}

}  // namespace kvt
