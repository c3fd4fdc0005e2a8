#include "app/windows/chamber_commands.hpp"

#include "app/program.hpp"
#include "app/windows/close_forms.hpp"
#include "app/windows/view_commands.hpp"
#include "views/exact/chamber_mark.hpp"
#include "views/zoom.hpp"

#include <numbers>

namespace kvt {

void point_at_chamber(program& kavetta, double place_deg) {
    if (has_rotors(kavetta.design_view)) {
        mark_chamber(kavetta.design_params, place_deg * std::numbers::pi / 180.0,
                     kavetta.view_state);
        show_rotation(kavetta);
    }
}

void forget_chamber(program& kavetta) {
    unmark_chamber(kavetta.view_state, kavetta.design_view);
}

void show_exact_row(program& kavetta, std::string_view row, form_shower& forms) {
    kavetta.exact_record.asked_row = row;
    open_form(kavetta, "exact_figures", forms);
}

}  // namespace kvt
