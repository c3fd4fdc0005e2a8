// The entries of the menus that write one file each, and the files of the simulation exchange.
#pragma once

#include "app/files/saved_text.hpp"
#include "output/written_files.hpp"

#include <optional>
#include <string>

namespace kvt {

/// The source of the writers: the program's records, boxes and choices, with the path of the file
/// and the date of program::date, else today's.
file_source source_of(const program& kavetta, std::string path = {});

/// The same for one file: where its results were made from older entries, those stand in place of
/// the boxes, in the unit that they had.
file_source source_of(const program& kavetta, const written_file& file, std::string path = {});

/// A click on a file's entry of the menus: save_file once may_write allows it.
void save_file_of_menu(program& kavetta, user& person, const written_file& file);

/// A file's save dialog, then the file as far as its writer got. Nothing when the dialog was
/// cancelled or named no file. Adds the hints of the written file (note_scrapped_part).
std::optional<saved_text> ask_and_save_file(program& kavetta, user& person,
                                            const written_file& file);

/// The same, its outcome in the status bar. Answers the path.
std::optional<std::string> save_file(program& kavetta, user& person, const written_file& file);

/// What is told once a file is written: that it would scrap the part. Empty for a sound one, and
/// for one that ended in a failure.
std::string notice_of(const program& kavetta, const written_file& file);

/// The menu mnudxf opens: mnudxfmetering can be used while metering_groove is ticked.
void open_dxf_menu(program& kavetta);

/// A file of the simulation exchange, without a dialog, under its name in a folder; nothing for a
/// port that was never finished. Throws the failure of the writer, whose file is saved as far as it
/// got, or path_not_found or path_file_access.
void write_gt_step_file(const program& kavetta, const written_file& file,
                        const std::string& folder);
/// All of them. Throws as for one.
void write_gt_step_files(const program& kavetta, const std::string& folder);

}  // namespace kvt
