#include "app/files/project_reset.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/program.hpp"
#include "app/windows/close_forms.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

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
    kavetta.stage_entries = {};
    kavetta.performance_valid = false;
    close_forms(
        kavetta,
        kind == reset_kind::new_project ? form_closer::new_project : form_closer::open_project,
        person);
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
