// The DXF and STEP files of `kvt export`.
#pragma once

#include "kvt/export_folder.hpp"
#include "kvt/export_request.hpp"

namespace kvt {

/// Writes the DXF and STEP files that were asked for, NAME.dxf and NAME.stp each; with --gt the
/// single bodies of the simulation exchange under their own names, too. Files of a port that was
/// not designed are left out, and refused when they were asked for by name.
void export_drawings(const program& kavetta, const export_request& request, export_folder& folder);

}  // namespace kvt
