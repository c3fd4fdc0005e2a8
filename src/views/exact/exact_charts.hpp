// exact_charts: the exact figures as charts: chamber volume, ideal flow, opened areas, oil speed,
// gaps. Sources: docs/formulas/charts.md for their form, the pages docs/formulas/exact_*.md for
// what they show.
#pragma once

#include "exact/exact_results.hpp"
#include "views/charts/result_chart.hpp"
#include "views/exact/exact_table.hpp"

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kvt {

enum class exact_chart { volume, flow, areas, speeds, gaps };

struct exact_chart_row {
    exact_chart chart;
    std::string_view name;  ///< "volume_chart": its widget and its texts
    exact_part part;        ///< what it draws
    bool is_over_life;      ///< its x axis is the place of a chamber
};
/// In the order of the window.
std::span<const exact_chart_row> exact_chart_rows();

/// A chart of what is worked out; nothing while its part is missing. Areas stand in mm2 in either
/// system of units, as volumes in mm3; a speed of 0 is none. The oil speed is that of the highest
/// speed of the range, of 1000 rpm without one.
std::optional<result_chart> make_exact_chart(const exact_chart_row& row, const exact_source& source,
                                             const exact_results& exact,
                                             const exact_manner& manner);

}  // namespace kvt
