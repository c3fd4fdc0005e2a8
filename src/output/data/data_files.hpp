// data_files: the tables of the performance as text files. Source: docs/file-formats.md,
// "Performance data files (`.txt`)".
#pragma once

#include "base/text_file.hpp"
#include "output/data/data_tables.hpp"

namespace kvt {

/// A table as lines: title, headers, rows with ";" between the numbers, last line. Numbers are
/// number_text with the decimal mark in place of the point. Throws overflow for a number that is
/// none, behind the rows before it.
void write_data_table(const data_table& table, char decimal_mark, text_lines& text);

void write_data_file(data_file file, const file_source& source, text_lines& text);

}  // namespace kvt
