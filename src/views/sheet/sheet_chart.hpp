// sheet_chart: a chart of the results on a page: the places of chart_drawing, in ink that is dark
// enough for white paper and dashes that tell the curves apart without colours.
#pragma once

#include "views/charts/result_chart.hpp"
#include "views/sheet/sheet_page.hpp"

namespace kvt {

/// The whole chart with its legend, within its area.
void add_chart(sheet_page& page, const result_chart& chart, const sheet_box& area,
               const sheet_metrics& metrics);

}  // namespace kvt
