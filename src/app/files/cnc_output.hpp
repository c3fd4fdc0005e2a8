// The CNC output dialog, Form3: which files, which cutter, which resolution, and the run of the
// writers.
#pragma once

#include "output/cnc/cnc_choices.hpp"
#include "output/written_files.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class user;
struct program;

/// The boxes of Form3. Each opening starts from open_cnc_form; what was used last comes back on
/// demand only.
struct cnc_form : cnc_entries {
    bool groove_entry_shown = false;             ///< groovetooltext, toolunits_groove and Label5
    std::string toolunits;                       ///< of both entries: "mm" or "Inches"
    std::vector<std::string> machine_res_items;  ///< the list of the combo box
};

/// The form as it loads: units of the project, the five resolutions with the system's decimal mark,
/// nothing ticked.
cnc_form open_cnc_form(const program& kavetta);

/// A click on a file's tick box. The outlet's pocket box shows the entry of the groove's tool when
/// metering_groove is ticked too; without the tick the entry is hidden and emptied.
void tick_cnc_file(const program& kavetta, cnc_form& form, const written_file& file, bool ticked);

/// Sets the boxes as they were at the last press of okbutton that passed the checks; nothing before
/// the first one. The entry of the groove's tool comes back with a metering groove only.
void use_last_cnc_entries(const program& kavetta, cnc_form& form);

/// The boxes of okbutton: whether the open project has the results of each ticked file, the checks
/// in their order, each with its message, then the ticked writers in theirs, each with its save
/// dialog. Answers whether the form closes: false when a check failed; nothing is written then. A
/// file whose dialog is cancelled is skipped; a run-time failure ends its file, which is saved as
/// far as it got. Kept: the check of the port radius compares the diameter as typed, in inches too,
/// with millimetres; cnc_output_test holds it.
bool write_cnc_files(program& kavetta, user& person, cnc_form& form);

// The parts of okbutton, shared with the batch program.

/// Decimals for a resolution text: 2 for "0.01" or "0,01" to 6 for "0.000001"; the last choice for
/// any other text.
std::int16_t resolution_digits(const std::string& text, std::int16_t last_choice);

/// The first check that fails shows its message, gives its entry the focus and answers false;
/// toolsize and groovetooltext get points for commas.
bool check_cnc_form(program& kavetta, user& person, cnc_form& form);

/// Adds the hint that a file of the outlet is written without the metering groove that is ticked,
/// because the last run of Design Ports did not finish one.
void note_refused_groove(program& kavetta, const written_file& file);

/// Why the G-codes of a port are not written: they would leave its outline, by how much. Empty when
/// they follow it, and for every other file.
std::string refused_gcode_note(const program& kavetta, const written_file& file);

/// Whether a file has a section for the metering groove's pocket, which needs a tool of its own.
bool mills_groove(const program& kavetta, const written_file& file);

}  // namespace kvt
