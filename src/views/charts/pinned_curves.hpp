// pinned_curves: the results of another design in a chart, to be drawn dashed. Source:
// docs/formulas/charts.md, "The pinned design".
#pragma once

#include "views/charts/result_chart.hpp"

#include <string>

namespace kvt {

/// A chart with the curves of another design's chart of the same kind, language and units beside
/// its own. The y axis then spans the results of both. On an axis of pressures p the other design's
/// points stand at the step
///     (p - p[0]) / (p[5] - p[0]) * steps
/// of the chart's own pressures, which may lie outside 0 .. steps; on one that has no length there
/// are none. `note` names the other design.
result_chart with_pinned_curves(result_chart chart, const result_chart& other, std::string note);

}  // namespace kvt
