#include "support/performance_case.hpp"

#include "base/text_file.hpp"

#include <filesystem>
#include <nlohmann/json.hpp>

namespace kvt {

namespace {

void read_design(const nlohmann::json& from, design_params& design) {
    design.numlobes = from["numlobes"];
    design.ecc = from["ecc"];
    design.radouter = from["radouter"];
    design.radinnroot = from["radinnroot"];
    design.clearn_half = from["clearn_half"];
    design.thick = from["thick"];
    design.shaftdiameter = from["shaftdiameter"];
    design.minmaterial = from["minmaterial"];
    design.maxdiameter = from["maxdiameter"];
    design.axial_clear = from["axial_clear"];
    design.radial_clear = from["radial_clear"];
    design.fillet = from["fillet"];
    design.outer_root = from["outer_root"];
    design.coarseness = from["coarseness"];
}

void read_rotors(const nlohmann::json& from, rotor_profiles& rotors) {
    rotors.base_radius = from["base_radius"];
    rotors.roll_radius = from["roll_radius"];
    rotors.trochoid_r = from["trochoid_r"];
    rotors.trochoid_ratio = from["trochoid_ratio"];
    rotors.capacity_cc = from["capacity_cc"];
    rotors.max_chamber_inner_angle = from["max_chamber_inner_angle"];
    rotors.max_chamber_outer_angle = from["max_chamber_outer_angle"];
    rotors.min_chamber_inner_angle = from["min_chamber_inner_angle"];
    rotors.min_chamber_outer_angle = from["min_chamber_outer_angle"];
}

}  // namespace

app_state performance_case::state() const {
    app_state state;
    const bool inches = expected_label("max_shaft_side_load").ends_with("lbsf");
    state.drawing_units = inches ? INCHES : MILLIMETRES;
    return state;
}

std::string performance_case::expected_label(std::string_view name) const {
    return expected->at("labels").at(std::string(name)).get<std::string>();
}

performance_case load_performance_case(const std::string& name) {
    performance_case sample;
    const nlohmann::json expected = nlohmann::json::parse(read_file(
        std::filesystem::path(KVT_TEST_DATA) / "reference" / (name + "_performance.json")));
    read_design(expected["design_params"], sample.design_params);
    read_rotors(expected["rotor_profiles"], sample.rotor_profiles);
    for (const auto& [field, value] : port_values(sample.port_params)) {
        *value = expected["port_params"][field];
    }
    for (const entry_field& field : entry_fields()) {
        const std::string key(field.name);
        if (expected["entries"].contains(key)) {
            sample.entries.*field.member = expected["entries"][key].get<std::string>();
        }
    }
    sample.expected = std::make_shared<const nlohmann::json>(expected);
    sample.perf_inputs = read_perf_inputs(sample.entries, length_unit_of(sample.state()).system);
    return sample;
}

}  // namespace kvt
