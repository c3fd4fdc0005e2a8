#include "app/stages/entry_handlers.hpp"

#include "app/program.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

constexpr double LARGEST_COARSENESS = 10.0;

void refuse_lobe_number(program& kavetta, user& person) {
    person.show_message(message_text(message::lobe_number_minimum, kavetta.app_state.language));
    kavetta.entries.numlobes = "3";
}

void leave_numlobes(program& kavetta, user& person) {
    std::string& text = kavetta.entries.numlobes;
    if (!(val(text) > 0.0)) {
        refuse_lobe_number(kavetta, person);
    }
    kavetta.design_params.numlobes = integer_of_text(text);
    // The text decides, not the rounded number: "2.7" is refused.
    if (val(text) < 3.0) {
        refuse_lobe_number(kavetta, person);
        kavetta.design_params.numlobes = 3;
    }
    text = number_text(kavetta.design_params.numlobes);
}

void leave_maxdiameter(program& kavetta, user& person) {
    if (!(val(kavetta.entries.maxdiameter) > 0.0)) {
        person.show_message(
            message_text(message::must_be_greater_than_zero, kavetta.app_state.language));
        kavetta.entries.maxdiameter = "1";
    }
}

/// Kept: "", "0" and "7" are compared as texts, so "7.0" stays; 7 doesn't divide the 3600 points.
/// entry_handlers_test holds it.
void leave_coarseness(program& kavetta) {
    std::string& text = kavetta.entries.coarseness;
    if (text.empty() || text == "0" || text == "7" || val(text) > LARGEST_COARSENESS) {
        text = "1";
    }
}

}  // namespace

void leave_entry(program& kavetta, user& person, std::string_view control) {
    if (control == "numlobes") {
        leave_numlobes(kavetta, person);
    } else if (control == "maxdiameter") {
        leave_maxdiameter(kavetta, person);
    } else if (control == "coarseness") {
        leave_coarseness(kavetta);
    }
}

}  // namespace kvt
