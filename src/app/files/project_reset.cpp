#include "app/files/project_reset.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/program.hpp"
#include "core/user.hpp"

#include <array>

namespace kvt {

namespace {

// Kept: New leaves RIPPLE_graphview2 loaded and Open leaves PRESS_RIP_graphview2;
// project_commands_test holds it.
constexpr std::array NEW_UNLOADS = {"perf_res",         "FLOW_graphview2",      "LOAD_graphview2",
                                    "HERTZ_graphview2", "PRESS_RIP_graphview2", "VE_graphview2",
                                    "EFFIC_graphview2", "OVREFF_graphview2"};
constexpr std::array OPEN_UNLOADS = {"perf_res",         "FLOW_graphview2",   "LOAD_graphview2",
                                     "HERTZ_graphview2", "RIPPLE_graphview2", "VE_graphview2",
                                     "EFFIC_graphview2", "OVREFF_graphview2"};

void clear_chart_choice(entries& boxes) {
    for (const entry_field& field : entry_fields()) {
        if (field.form == "select_graphs") {
            boxes.*field.member = "0";
        }
    }
}

}  // namespace

void project_reset(program& kavetta, user& person, reset_kind kind) {
    kavetta.view_state.angleline_count =
        static_cast<double>(kavetta.design_view.angleline.elements.size());
    clear_all(kavetta.design_view);
    apply_chain(kavetta.enabling, chain_event::project_reset);
    kavetta.app_state.profiles_calculated = 0;
    for (const char* form : kind == reset_kind::new_project ? NEW_UNLOADS : OPEN_UNLOADS) {
        person.unload_form(form);
    }
    clear_chart_choice(kavetta.entries);
    kavetta.labels.max_chamb_vol.clear();
    kavetta.labels.min_chamb_vol.clear();
    kavetta.labels.area_ratio.clear();
    rotor_profiles& rotors = kavetta.rotor_profiles;
    rotors.max_chamber_area = rotors.max_chamber_volume = 0.0;
    rotors.min_chamber_area = rotors.min_chamber_volume = 0.0;
    rotors.inner_area = rotors.outer_area = rotors.area_ratio = 0.0;
}

}  // namespace kvt
