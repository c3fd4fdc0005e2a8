// The designs whose models are compared: one in millimetres, one in inches.
#pragma once

#include "support/cnc_design.hpp"

namespace kvt {

/// A design of tests/data/designs with a check box ticked before its ports are designed.
inline program ticked_design(const std::string& name, std::string entries::*check) {
    program kavetta = opened_design(name);
    kavetta.entries.*check = "1";
    scripted_user person;
    calculate_profiles(kavetta, person);
    design_ports(kavetta, person);
    return kavetta;
}

/// In millimetres, with a metering groove, shadow ports and a double-sided outlet.
inline program double_sided_design() {
    return ticked_design("n07_engine_oil_groove", &entries::outlet_double_sided);
}

/// In inches, with shadow ports.
inline program inch_design_with_shadow_ports() {
    return ticked_design("n07_inch_hydraulic", &entries::shadow_ports);
}

}  // namespace kvt
