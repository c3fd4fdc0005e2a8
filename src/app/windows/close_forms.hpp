// The forms that close because of something that happened, e.g. because their results are stale.
#pragma once

#include "core/form_table.hpp"

namespace kvt {

class form_shower;

/// Unloads every form whose row of the table of forms names this closer, in the order of the table.
void close_forms(form_closer closer, form_shower& forms);

}  // namespace kvt
