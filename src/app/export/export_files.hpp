// export_files: the files of a design that other programs read, without a dialog.
#pragma once

#include "app/export/export_folder.hpp"
#include "app/export/export_request.hpp"
#include "core/user.hpp"

namespace kvt {

/// Writes the files of the table that were asked for under their names; without a choice all that
/// the design allows. Files of a port or groove that was not designed are left out, and refused
/// when they were asked for by name. CNC files go through the checks of the CNC output dialog one
/// by one: a failed check refuses its file only. Without a tool the files that need one are left
/// out with a note, without a groove tool the groove's pocket. The port report comes with a
/// finished outlet. What the performance gives is left to export_performance.
void export_files(program& kavetta, user& person, const export_request& request,
                  export_folder& folder);

}  // namespace kvt
