// performance_case: a sample design with everything that Calculate Performance reads, and the
// results it must give.
#pragma once

#include "base/text_file.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/delivered_flow.hpp"
#include "performance/drive_power.hpp"
#include "performance/hertz_contact.hpp"
#include "performance/lobe_load_share.hpp"
#include "performance/maximum_speed.hpp"
#include "performance/perf_entries.hpp"
#include "performance/perf_grid.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "performance/pressure_ripple.hpp"
#include "performance/sliding_velocity.hpp"
#include "ports/port_params.hpp"

#include <array>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

namespace kvt {

inline constexpr std::array SAMPLES = {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                       "n07_inch_hydraulic", "n09_crank_oil"};

struct performance_case {
    kvt::design_params design_params;
    kvt::rotor_profiles rotor_profiles;
    kvt::port_params port_params;
    kvt::entries entries;
    kvt::perf_inputs perf_inputs;
    kvt::perf_results perf_results;
    nlohmann::json expected;  ///< the reference file

    /// English, with the unit of the reference's texts.
    app_state state() const {
        const auto load = expected["labels"]["max_shaft_side_load"].get<std::string>();
        app_state state;
        state.drawing_units = load.ends_with("lbsf") ? INCHES : MILLIMETRES;
        return state;
    }

    /// Speed limits and grid, then the eight routines in the order of Calculate Performance.
    void run() {
        prepare();
        calc_sliding_velocity(design_params, rotor_profiles, perf_results);
        calc_drive_power(design_params, rotor_profiles, port_params, perf_inputs, perf_results);
        calc_lobe_load_share(design_params, rotor_profiles, perf_results);
        calc_hertz_and_side_load(design_params, perf_inputs, perf_results);
        calc_flow(design_params, rotor_profiles, port_params, perf_inputs, perf_results);
        calc_mech_efficiency(rotor_profiles, perf_results);
        calc_overall_efficiency(perf_results);
        calc_pressure_ripple(design_params, rotor_profiles, port_params, perf_inputs, perf_results);
    }
    void prepare() {
        set_shared_values(design_params, rotor_profiles, perf_inputs, perf_results);
        calc_maximum_speed(rotor_profiles, port_params, perf_inputs, perf_results);
        set_grid(perf_inputs, perf_results);
    }
};

inline void read_design(const nlohmann::json& from, design_params& design) {
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

inline void read_rotors(const nlohmann::json& from, rotor_profiles& rotors) {
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

/// Reads tests/data/reference/NAME_performance.json; perf_inputs are read from its entries.
inline performance_case load_performance_case(const std::string& name) {
    performance_case sample;
    sample.expected = nlohmann::json::parse(read_file(std::filesystem::path(KVT_TEST_DATA) /
                                                      "reference" / (name + "_performance.json")));
    read_design(sample.expected["design_params"], sample.design_params);
    read_rotors(sample.expected["rotor_profiles"], sample.rotor_profiles);
    for (const port_field<double>& field : port_values()) {
        sample.port_params.*field.member = sample.expected["port_params"][std::string(field.name)];
    }
    for (const entry_field& field : entry_fields()) {
        const std::string key(field.name);
        if (sample.expected["entries"].contains(key)) {
            sample.entries.*field.member = sample.expected["entries"][key].get<std::string>();
        }
    }
    sample.perf_inputs = read_perf_inputs(sample.entries, length_unit_of(sample.state()).system);
    return sample;
}

}  // namespace kvt
