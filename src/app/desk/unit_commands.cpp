#include "app/desk/unit_commands.hpp"

#include "app/program.hpp"
#include "app/windows/close_forms.hpp"
#include "base/number_text.hpp"
#include "core/capacity_unit.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

void set_rows(program& kavetta, text_kind kind, std::int16_t language) {
    for (const text_row& row : text_rows()) {
        if (row.kind == kind) {
            kavetta.captions.set(row, language);
        }
    }
}

void set_unit_labels_again(program& kavetta) {
    set_unit_labels(kavetta, length_unit_of(kavetta.app_state));
}

}  // namespace

void set_english_captions(program& kavetta) {
    // Kept: Form3 and Form4, whose English stands at design time only, stay German after a change
    // back to English; unit_commands_test holds it.
    set_rows(kavetta, text_kind::caption, ENGLISH);
    set_unit_labels_again(kavetta);
}

void set_german_captions(program& kavetta) {
    set_rows(kavetta, text_kind::caption, GERMAN);
    set_rows(kavetta, text_kind::design_caption, GERMAN);
    set_unit_labels_again(kavetta);
}

void set_captions(program& kavetta) {
    if (kavetta.app_state.language == ENGLISH) {
        set_english_captions(kavetta);
    } else if (kavetta.app_state.language == GERMAN) {
        set_german_captions(kavetta);
    }
}

void choose_language(program& kavetta, user& person, std::int16_t language) {
    kavetta.app_state.language = language;
    close_forms(kavetta, form_closer::language, person);
    set_captions(kavetta);
}

void set_unit_labels(program& kavetta, const length_unit& unit) {
    kavetta.app_state.drawing_units = unit.code;
    set_rows(kavetta, unit.captions, kavetta.app_state.language);
}

void select_capacity_unit(program& kavetta, std::int16_t code) {
    const capacity_unit* unit = find_capacity_unit(code);
    if (unit == nullptr) {
        return;
    }
    app_state& state = kavetta.app_state;
    const double factor = capacity_unit_factor(state.capacity_unit, code);
    kavetta.labels.unittype = unit->list_text;
    state.capacity_unit = code;

    fixed4& capacity = kavetta.rotor_profiles.capacity;
    capacity = fixed4::from(val(kavetta.labels.capacity));
    capacity = fixed4::from(capacity.value() * factor);
    kavetta.labels.capacity = capacity.text();

    state.volumereqd_value = fixed4::from(val(kavetta.entries.volumereqd) * factor);
    kavetta.entries.volumereqd = state.volumereqd_value.text();
    kavetta.labels.units_label = unit->list_text;
}

}  // namespace kvt
