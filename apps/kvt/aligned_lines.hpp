// aligned_lines: rows of a summary as lines with columns; measured in characters, not bytes.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kvt {

/// "caption  value" lines; the values of all rows start in one column. Texts are UTF-8.
std::string aligned_lines(const std::vector<std::pair<std::string, std::string>>& rows);

/// A row of cells a line, two blanks between the columns; every column but the first is flush
/// right. Rows may differ in length.
std::string aligned_table(const std::vector<std::vector<std::string>>& rows);

}  // namespace kvt
