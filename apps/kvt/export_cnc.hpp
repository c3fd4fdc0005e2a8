// The CNC files of `kvt export`.
#pragma once

#include "kvt/batch_user.hpp"
#include "kvt/export_folder.hpp"
#include "kvt/export_request.hpp"

namespace kvt {

/// Writes the CNC files that were asked for, NAME.cnc each, with the checks of the CNC output
/// dialog file by file: a failed check refuses its file only. Files of a port that was not designed
/// are left out, and refused when they were asked for by name. Without a tool the files that need
/// one are left out with a note, without a groove tool the groove's pocket.
void export_cnc_files(program& kavetta, batch_user& person, const export_request& request,
                      export_folder& folder);

}  // namespace kvt
