// performance_case: a sample design with everything that Calculate Performance reads, and the
// results it must give.
#pragma once

#include "core/app_state.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
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
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

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
    std::shared_ptr<const nlohmann::json> expected;  ///< the reference file

    /// English, with the unit of the reference's texts.
    app_state state() const;
    /// The text that the reference has for a label.
    std::string expected_label(std::string_view name) const;

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

/// Reads tests/data/reference/NAME_performance.json; perf_inputs are read from its entries.
performance_case load_performance_case(const std::string& name);

}  // namespace kvt
