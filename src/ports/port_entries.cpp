#include "ports/port_entries.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "geometry/trochoid.hpp"

namespace kvt {

namespace {

struct rotor_length {
    std::string entries::*box;
    double design_params::*field;
};

constexpr rotor_length ROTOR_LENGTHS[] = {
    {&entries::ecc, &design_params::ecc},
    {&entries::radouter, &design_params::radouter},
    {&entries::thick, &design_params::thick},
    {&entries::radinnroot, &design_params::radinnroot},
    {&entries::shaftdiameter, &design_params::shaftdiameter},
    {&entries::maxdiameter, &design_params::maxdiameter},
    {&entries::axial_clear, &design_params::axial_clear},
    {&entries::minmaterial, &design_params::minmaterial},
};

double two_decimals_cut(double degrees) {
    return floor_to_int(degrees * 100.0) / 100.0;
}

}  // namespace

std::string length_text(double mm, const length_unit& unit) {
    return number_text(unit.from_mm(mm));
}

std::string cut_length_text(double mm, const length_unit& unit) {
    return number_text(unit.cut_from_mm(mm));
}

double length_of(const std::string& text, const length_unit& unit) {
    return checked_finite(unit.to_mm(val(text)));
}

void read_port_angles(const port_fields& port, const rotor_profiles& rotors, entries& boxes,
                      port_params& ports) {
    for (std::size_t index = 0; index < port.corners.size(); ++index) {
        const corner_fields& corner = port.corners[index];
        double& angle_deg = port.record(ports).corners[index].angle_deg;
        std::string& text = boxes.*corner.box;
        if (!text.empty()) {
            angle_deg = val(text);
            continue;
        }
        const double chamber_angle = rotors.*corner.default_angle;
        const double cut = two_decimals_cut(chamber_angle);
        angle_deg = corner.is_end ? 180.0 - chamber_angle : chamber_angle;
        text = number_text(corner.is_end ? 180.0 - cut : cut);
    }
}

void fill_port_radii(const port_fields& port, const design_params& design, const length_unit& unit,
                     entries& boxes) {
    if (val(boxes.*port.inner_radius_box) == 0.0) {
        boxes.*port.inner_radius_box = length_text(design.radinnroot, unit);
    }
    if (val(boxes.*port.outer_radius_box) == 0.0) {
        boxes.*port.outer_radius_box = length_text(design.outer_root, unit);
    }
}

void read_port_radii(const port_fields& port, const entries& boxes, const length_unit& unit,
                     port_params& ports) {
    port.record(ports).inner_r = length_of(boxes.*port.inner_radius_box, unit);
    port.record(ports).outer_r = length_of(boxes.*port.outer_radius_box, unit);
    ports.port_radius = length_of(boxes.port_radii, unit);
}

void reread_design(const entries& boxes, const length_unit& unit, design_params& design,
                   rotor_profiles& rotors) {
    design.numlobes = to_int32(val(boxes.numlobes));
    for (const auto& [box, field] : ROTOR_LENGTHS) {
        design.*field = length_of(boxes.*box, unit);
    }
    design.clearn_half = unit.half_to_mm(val(boxes.clearn));
    design.coarseness = to_int16(val(boxes.coarseness));
    set_rolling_circles(design, rotors);
    rotors.lobe_centre_offset = design.ecc + design.radinnroot;
}

}  // namespace kvt
