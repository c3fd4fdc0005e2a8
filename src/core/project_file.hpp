// project_file: the 59 positional lines of a .KVT file, read in all five lengths and written in
// full, the named lines behind them, and the files of entries that nobody saved.
#pragma once

#include "core/entries.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kvt {

/// What a project file holds. Texts are UTF-8. Form1.coarseness is read but not assigned by Open.
struct project_record {
    std::string project_path;  ///< line 1; ignored on reading
    std::string project_name;  ///< line 2
    std::string units;         ///< line 3, "mm" or empty (anything else means inches)
    entries
        boxes;  ///< the boxes of lines 4 to 15, 24 to 59; a line not in the file is empty or "0"
    std::string capacity;                                         ///< line 16
    std::int16_t capacity_unit = 0;                               ///< line 17
    std::string cnc_file_troc, cnc_file_inner, cnc_file_xyouter;  ///< lines 18 to 20
    std::string cnc_file_innertooloffset, cnc_file_outertooloffset,
        cnc_file_outer;  ///< lines 21 to 23
};

/// Reads the bytes of a project file: 23, 53, 57, 58 or 59 lines. Behind 59, "UTS_value=TEXT" sets
/// the box of that name, the first such line counts, and every other line is ignored. Throws
/// input_past_end when the lines end elsewhere, type_mismatch or overflow for an integer line that
/// holds no 16-bit number. project_name is set as soon as line 2 has been read, also when a later
/// line throws.
project_record read_project(std::string_view bytes, std::string& project_name);

/// The bytes of a project file: 59 lines, and behind them "UTS_value=TEXT" when that box is not
/// empty. Throws invalid_property_value for a text with a line end inside, type_mismatch or
/// overflow for a check box whose text is no 16-bit number.
std::string write_project(const project_record& record);

/// Entries that nobody saved, with the path of their project in line 1.
struct unsaved_record {
    project_record project;
    std::string session;  ///< the stretch of work that they come from; empty in older files
};

/// Like write_project, with every box of the forms Form1, portdes and Perffrm and the session as
/// named lines behind the 59, and path and name once more where the code page lacks a letter of
/// them. Throws like it.
std::string write_unsaved(const unsaved_record& record);

/// Reads what write_unsaved wrote, and every project file, leniently: each box comes back as it was
/// typed, a check line without 0 or 1 is off, a capacity unit without a number is 1, missing lines
/// are empty. Throws input_past_end for fewer lines than the shortest project has.
unsaved_record read_unsaved(std::string_view bytes);

}  // namespace kvt
