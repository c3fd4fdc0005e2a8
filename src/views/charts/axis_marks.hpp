// axis_marks: the numbers beside the axes of a chart. Source: docs/formulas/charts.md, "The y
// axis".
#pragma once

#include "views/charts/result_chart.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// A number beside an axis; the whole number with its unit stands behind a text that cuts it.
chart_mark mark_of(double value, const std::string& text, std::string_view unit);

/// Distance of the numbers between the ends of an axis over range = maximum - minimum > 0:
///     Int(range / 5), or range / 5 where that is 0
double mark_step(double range);

/// Decimals that tell numbers at a distance of step > 0 apart: 0 from 100 on, 1 from 10, 2 from 1,
/// 3 from 0.1, below 1 - Int(log10(step)).
int mark_decimals(double step);

/// The text of a value, rounded half to even to that many decimals, without zeros at its end. A
/// half is one in 15 digits: 8.345 gives 8.34 though its double lies above.
std::string rounded_text(double value, int decimals);

/// From the bottom up: minimum, minimum + k step as long as half a step is left up to maximum,
/// maximum.
std::vector<chart_mark> computed_marks(double minimum, double maximum, std::string_view unit);

/// 0 to 100 in steps of 20, at the values 0 to 1.
std::vector<chart_mark> percent_marks();

}  // namespace kvt
