// A whole design with its performance.
#pragma once

#include "app/stages/calculate_performance.hpp"
#include "support/cnc_design.hpp"

#include <string>

namespace kvt {

/// Opens a design of tests/data/designs and runs the three stages.
inline program performed_design(const std::string& name) {
    program kavetta = design_with_ports(name);
    scripted_user person;
    calculate_performance(kavetta, person);
    return kavetta;
}

}  // namespace kvt
