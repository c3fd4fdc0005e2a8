// written_results: whether the results that a file is written from are those of the open project,
// and of its entries as they stand now. The desk looks before it writes; the batch program has just
// calculated.
#pragma once

#include "app/stages/stage_entries.hpp"
#include "output/written_files.hpp"

#include <set>
#include <string>

namespace kvt {

class user;
struct program;

/// The entries that a file is written from when they are not the present ones: those of the
/// results, where an entry that their stage reads has changed since. Nothing for the outer rotor's
/// DXF file of an imperial project, which takes the entries as typed.
const noted_entries* older_entries(const program& kavetta, const written_file& file);

/// What a menu entry does before its dialog: without results of the open project it names the stage
/// to run first and answers false; with results of older entries it asks whether to write those.
bool may_write(const program& kavetta, user& person, const written_file& file);

/// The same for the entry that opens the CNC output dialog: profiles must be there, and the
/// question is about everything that can be written.
bool may_open_cnc_form(const program& kavetta, user& person);

/// The same for a file about the whole design: profiles must be there, and the question is about
/// everything that the records hold of the open project.
bool may_write_design(const program& kavetta, user& person);

/// False, told, when a file of these names has no results of the open project.
bool has_results(const program& kavetta, user& person,
                 const std::set<std::string, std::less<>>& cnc_files);

}  // namespace kvt
