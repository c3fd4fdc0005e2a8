#include "app/windows/close_forms.hpp"

#include "core/form_shower.hpp"

namespace kvt {

void close_forms(form_closer closer, form_shower& forms) {
    for (const form_row& form : form_rows()) {
        if (is_closed_by(form, closer)) {
            forms.unload_form(form.name);
        }
    }
}

}  // namespace kvt
