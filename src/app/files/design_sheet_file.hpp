// design_sheet_file: the Design Sheet entry of the File menu.
#pragma once

#include "views/sheet/sheet_writer.hpp"

namespace kvt {

class user;
struct program;

/// The pages of the design in the records: each section from the entries that its results were made
/// from, in the unit that the profiles had; messages and hints are those that a run of these
/// entries tells. Profiles must be there.
std::vector<sheet_page> design_sheet_of(const program& kavetta, const sheet_paper& paper);

/// Without profiles of the open project it says so; with results of older entries it asks first.
/// Then the save dialog, PROJECT - Design Sheet.pdf proposed, and the file.
void save_design_sheet(const program& kavetta, user& person, sheet_writer& writer);

}  // namespace kvt
