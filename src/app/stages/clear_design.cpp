#include "app/desk/enabling_chain.hpp"
#include "app/desk/program_title.hpp"
#include "app/desk/unit_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <array>
#include <string_view>

namespace kvt {

namespace {

using box = std::string entries::*;

struct default_text {
    box member;
    std::string_view text;
};

constexpr std::array ROTOR_DEFAULTS = {
    default_text{&entries::volumereqd, "0"},   default_text{&entries::shaftdiameter, "0"},
    default_text{&entries::clearn, "0"},       default_text{&entries::minmaterial, "0"},
    default_text{&entries::ecc, "0"},          default_text{&entries::radinnroot, "0"},
    default_text{&entries::radouter, "0"},     default_text{&entries::axial_clear, "0"},
    default_text{&entries::radial_clear, "0"}, default_text{&entries::thick, "1"},
    default_text{&entries::maxdiameter, "1"},  default_text{&entries::coarseness, "1"},
    default_text{&entries::numlobes, "3"},     default_text{&entries::fillet, ""},
    default_text{&entries::outer_root, ""}};

constexpr std::array<box, 4> PORTING_CHECKS = {&entries::outlet_double_sided,
                                               &entries::inlet_double_sided, &entries::shadow_ports,
                                               &entries::metering_groove};

constexpr std::array<box, 4> RANGE_BOXES = {&entries::speed_hi, &entries::speed_lo,
                                            &entries::pressure_hi, &entries::pressure_lo};

constexpr std::array<box, 10> FLUID_AND_MATERIAL_BOXES = {
    &entries::fluid_density,  &entries::kin_visc,       &entries::vap_press,
    &entries::bulk_mod_text,  &entries::young_inner,    &entries::young_outer,
    &entries::poissons_inner, &entries::poissons_outer, &entries::friction,
    &entries::UTS_value};

void clear_port_entries(program& kavetta) {
    for (const box member : PORTING_CHECKS) {
        set_porting_check(kavetta, member, "0");
    }
    for (const entry_field& field : entry_fields()) {
        if (field.form == "portdes" && field.kind == entry_kind::text) {
            (kavetta.entries.*field.member).clear();
        }
    }
}

/// True when fluid and material values go too: asked, unless the user chose New at the start
/// prompt.
bool drops_fluid_and_material(program& kavetta, user& person) {
    if (kavetta.app_state.new_pressed) {
        return true;
    }
    const std::string_view question =
        message_text(message::keep_existing_values, kavetta.app_state.language);
    return person.ask(question, question_buttons::yes_no) == answer::no;
}

}  // namespace

void clear_design(program& kavetta, user& person) {
    kavetta.step_caption = find_caption("Form1", "cleardesign");
    set_unit_labels(kavetta, length_unit_of(MILLIMETRES));
    for (const default_text& row : ROTOR_DEFAULTS) {
        kavetta.entries.*row.member = row.text;
    }
    clear_port_entries(kavetta);
    for (const box member : RANGE_BOXES) {
        (kavetta.entries.*member).clear();
    }
    apply_chain(kavetta.enabling, chain_event::clear_design);
    kavetta.labels.capacity = "0.0";
    kavetta.labels.title = program_title();
    if (drops_fluid_and_material(kavetta, person)) {
        for (const box member : FLUID_AND_MATERIAL_BOXES) {
            (kavetta.entries.*member).clear();
        }
    }
    kavetta.app_state.project_has_file = false;
    kavetta.app_state.new_pressed = false;
}

}  // namespace kvt
