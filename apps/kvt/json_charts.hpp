// json_charts: the result charts as JSON, in twips.
#pragma once

#include "core/length_unit.hpp"
#include "kvt/json_fields.hpp"
#include "performance/perf_results.hpp"

#include <cstdint>

namespace kvt {

/// {"flow", "power", "stress", "ripple", "ve", "mech", "overall"}, each as it stands in a window of
/// the default size: {"x_axis": [x1, x2], "y_axis": [y0, y1], "segments": [[series, x1, y1, x2,
/// y2]], "y_markers": [[top, text]], "x_markers": [[left, text]], "title", "x_title",
/// "legend_caption", "legend": [[text, [r, g, b]]], "window_caption", "file_ending"}. The ripple
/// has an empty legend.
json json_charts(const perf_results& results, std::int16_t language, unit_system system);

}  // namespace kvt
