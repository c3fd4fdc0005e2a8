// form_factory: makes the child windows of the table of forms by their names.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <string_view>

namespace kvt {

class mdi_form;

/// Builds the child window of a name; nullptr for a form that is none or that comes with a later
/// version. Throws run_time_error when the load of the form fails.
mdi_form* make_form(std::string_view form, form_context context);

}  // namespace kvt
