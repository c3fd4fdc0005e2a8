// aligned_lines: captions and values as a table for people.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kvt {

/// One line a row, UTF-8: the caption, at least two blanks, the value; all values begin in one column.
std::string aligned_lines(const std::vector<std::pair<std::string, std::string>>& rows);

}  // namespace kvt
