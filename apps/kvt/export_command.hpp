// export_command: the files that a design turns into, written to one folder.
#pragma once

#include "app/export/export_request.hpp"

#include <iosfwd>

namespace kvt {

/// Opens the project, types the entries, and writes the project as Save As would, DIR/<name of the
/// input>.KVT with that path as its first line. Then Calculate Profiles and Design Ports run, and
/// the files that were asked for are written; with the ports comes port_radius_coordinates.txt. A
/// design that is refused or fails writes the project alone, a refused port leaves out the files of
/// its port. For the files of the performance Calculate Performance runs too; with --force a design
/// that it refuses is good. The folder is created when it is missing; files of these names are
/// replaced. The paths of the written files go to `out`, one a line. Answers the exit status.
int export_design(const export_request& request, std::ostream& out, std::ostream& err);

}  // namespace kvt
