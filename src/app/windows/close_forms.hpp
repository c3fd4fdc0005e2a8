// The forms that close because of something that happened, e.g. because their results are stale,
// and the ones that are shown again.
#pragma once

#include "core/form_table.hpp"

#include <string_view>

namespace kvt {

class form_shower;
struct program;

/// Unloads every form whose row of the table of forms names this closer, in the order of the table.
/// What perf_res showed is gone with it (results_shown).
void close_forms(program& kavetta, form_closer closer, form_shower& forms);

/// Shows a child window, loading it where it is not there; perf_res shows the results again.
void open_form(program& kavetta, std::string_view form, form_shower& forms);

}  // namespace kvt
