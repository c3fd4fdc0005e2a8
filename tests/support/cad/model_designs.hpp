// The designs whose models are compared: one in millimetres, one in inches.
#pragma once

#include "support/cnc_design.hpp"

namespace kvt {

/// In millimetres, with a metering groove and a double-sided outlet.
inline program double_sided_design() {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    kavetta.entries.outlet_double_sided = "1";
    return kavetta;
}

/// In inches, with shadow ports.
inline program inch_design_with_shadow_ports() {
    program kavetta = design_with_ports("n07_inch_hydraulic");
    kavetta.entries.inlet_double_sided = kavetta.entries.outlet_double_sided = "0";
    kavetta.entries.shadow_ports = "1";
    return kavetta;
}

}  // namespace kvt
