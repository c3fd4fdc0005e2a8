#include "app/windows/close_forms.hpp"

#include "core/user.hpp"

namespace kvt {

void close_forms(form_closer closer, user& person) {
    for (const form_row& form : form_rows()) {
        if (is_closed_by(form, closer)) {
            person.unload_form(form.name);
        }
    }
}

}  // namespace kvt
