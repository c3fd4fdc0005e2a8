// The ports of the sound 7-lobe design for tests of the ports: typed entries, records, and the work
// on them.
#pragma once

#include "core/app_state.hpp"
#include "ports/port_work.hpp"
#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"

#include <string>

namespace kvt {

/// The entries of the rotors and of two different ports with a metering groove.
inline entries sample_port_entries() {
    entries boxes = sample_entries();
    boxes.inlet_start_inner = "14";
    boxes.inlet_start_outer = "12";
    boxes.inlet_end_inner = "150";
    boxes.inlet_end_outer = "146";
    boxes.inlet_inner_radius = "14.5";
    boxes.inlet_outer_radius = "22.4";
    boxes.outlet_start_inner = "16";
    boxes.outlet_start_outer = "14";
    boxes.outlet_end_inner = "148";
    boxes.outlet_end_outer = "144";
    boxes.Outlet_inner_radius = "14.6";
    boxes.Outlet_outer_radius = "22.2";
    boxes.port_radii = "1.5";
    boxes.groove_length = "12";
    boxes.groove_width = "1.5";
    boxes.groove_depth = "1";
    boxes.metering_groove = "1";
    return boxes;
}

/// Records, entries and user of one design; work() is what the steps of Design Ports get.
struct port_design {
    entries boxes = sample_port_entries();
    design_params design = sample_design();
    rotor_profiles rotors = prepared_rotors(design);
    port_params ports;
    scripted_user person;
    std::int16_t language = ENGLISH;
    bool inches = false;

    port_design() {
        rotors.min_chamber_inner_angle = 20.5678;
        rotors.min_chamber_outer_angle = 17.2349;
        rotors.max_chamber_inner_angle = 31.4159;
        rotors.max_chamber_outer_angle = 34.9876;
    }

    const length_unit& unit() const { return length_unit_of(inches ? INCHES : MILLIMETRES); }
    port_work work() { return {ports, design, rotors, boxes, person, language, unit()}; }
    std::string last_message() const {
        return person.messages.empty() ? "" : person.messages.back();
    }
};

}  // namespace kvt
