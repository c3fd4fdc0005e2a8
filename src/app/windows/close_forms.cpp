#include "app/windows/close_forms.hpp"

#include "app/program.hpp"
#include "core/form_shower.hpp"

namespace kvt {

namespace {

constexpr std::string_view RESULTS = "perf_res";

}  // namespace

void close_forms(program& kavetta, form_closer closer, form_shower& forms) {
    for (const form_row& form : form_rows()) {
        if (is_closed_by(form, closer)) {
            forms.unload_form(form.name);
            kavetta.results_shown = kavetta.results_shown && form.name != RESULTS;
        }
    }
}

void open_form(program& kavetta, std::string_view form, form_shower& forms) {
    forms.show_form(form);
    kavetta.results_shown = kavetta.results_shown || form == RESULTS;
}

}  // namespace kvt
