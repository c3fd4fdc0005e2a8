// user: the person on the other side of a command, whole. The desktop program answers with windows,
// the batch program with options and standard error, a test with a script. What needs one subject
// alone takes that: messages and focus, questions, file dialogs, files opened elsewhere, forms, the
// printer, progress, other programs.
#pragma once

#include "core/asker.hpp"
#include "core/file_chooser.hpp"
#include "core/file_opener.hpp"
#include "core/form_shower.hpp"
#include "core/printer_chooser.hpp"
#include "core/progress_shower.hpp"
#include "core/teller.hpp"
#include "core/tool_starter.hpp"

namespace kvt {

class user : public teller,
             public asker,
             public file_chooser,
             public file_opener,
             public form_shower,
             public printer_chooser,
             public progress_shower,
             public tool_starter {};

}  // namespace kvt
