// The table of the written files: their names, the controls that write them, what they need, their
// writers. A new format is a row here and a writer.
#pragma once

#include "base/text_file.hpp"
#include "output/file_source.hpp"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// Files of one format that belong together.
enum class file_group { cnc, dxf, step, gt, report, data, step_exact, dxf_exact, svg, stl };

/// How the batch program is asked for the files of a group: by their names in an option, or all of
/// them where nothing was chosen; by their names alone; all of them with a flag; or not at all
/// because they always come with the others.
enum class file_choice { by_name, only_by_name, by_flag, always };

struct file_group_row {
    file_group group;
    std::string_view name;       ///< "cnc": option of the batch program
    std::string_view format;     ///< "CNC": what a person calls it
    std::string_view texts;      ///< form of its rows in the text table: "filter", and "NAME_title"
                                 ///< or "title"; "" without a save dialog
    std::string_view extension;  ///< without the point
    file_choice choice = file_choice::by_name;
    std::string_view flagged = {};  ///< by_flag: what the batch program's help calls its files
    std::string_view mark = {};     ///< stands behind the name of each of its files: "_exact"
};

/// What a design must have before a file says something.
enum class file_needs { profiles, inlet, outlet, any_port, groove, performance };

struct written_file {
    file_group group;
    std::string_view name;     ///< "inner_xy": for the batch program, and the name of its file
    std::string_view control;  ///< its tick box on Form3 or its own entry of the menu; "" for none
    file_needs needs;
    /// Appends the whole file; a run-time failure leaves the lines before it in the text.
    void (*write)(const file_source& source, text_lines& text);
    bool needs_tool = false;
    /// What is told once the file is written because it would scrap the part; empty when it would
    /// not.
    std::string (*notice)(const file_source& source) = nullptr;
};

std::span<const file_group_row> file_groups();
const file_group_row& row_of(file_group group);

/// Every file in the order in which chosen ones are written; those of a group stand together.
std::span<const written_file> written_files();
std::span<const written_file> files_of(file_group group);

/// The row of a name, or nullptr.
const written_file* find_file(file_group group, std::string_view name);

/// "inner_xy.cnc", "inner_exact.stp"
std::string file_name(const written_file& file);

/// Whether the design has what a file needs: ports that were finished, a groove that is ticked. The
/// results of a performance are always there, all 0 before the first run.
bool is_there(file_needs needs, const port_params& ports, const entries& boxes);

}  // namespace kvt
