// chart_csv: the curves of a chart as columns of a text file, with their units in the first line.
#pragma once

#include "base/text_file.hpp"
#include "views/charts/result_chart.hpp"

namespace kvt {

/// The first line names the columns: what the x axis counts, then a curve each. A point that stands
/// for itself has a line of its own, with nothing in the columns of the other curves. Columns are
/// parted by a semicolon, so that a decimal comma is possible.
void write_chart_csv(const result_chart& chart, char decimal_mark, text_lines& text);

}  // namespace kvt
