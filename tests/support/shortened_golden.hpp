// Golden files of long texts: written shortened, compared with a tolerance for the last digits of
// numbers.
#pragma once

#include <string>

namespace kvt {

/// The text without its repetitions, for people to read: of a run of lines (or of groups of ten
/// lines) that differ in their numbers only the first two and the last two stay, of a long line its
/// beginning and its end. The last line tells the size of the whole: lines, numbers, and a weighted
/// sum of all numbers but entity numbers (behind "#").
std::string shortened(const std::string& bytes, char decimal_mark = '.');

/// Fails when the text differs from tests/data/output/NAME in more than the last digits of its
/// numbers (1e-9 relative: another C library may round a sine the other way), and leaves it as
/// golden_out/NAME.out.
void expect_near_golden(const std::string& name, const std::string& text, char decimal_mark = '.');

/// The same for the shortened text.
void expect_shortened_golden(const std::string& name, const std::string& bytes,
                             char decimal_mark = '.');

}  // namespace kvt
