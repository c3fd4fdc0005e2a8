// result_chart: what a chart of the performance results says, in the language and units of the
// moment it is made: its curves, the numbers beside its axes, its texts. Where all of that stands
// is chart_drawing's. Source: docs/formulas/charts.md.
#pragma once

#include "core/length_unit.hpp"
#include "performance/perf_results.hpp"
#include "views/rgb_colour.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// In the order in which the charts open.
enum class chart_kind { flow, power, stress, ripple, ve, mech, overall };

struct chart_row {
    chart_kind kind;
    std::string_view form;  ///< "FLOW_graphview2": its window, a row of the form table
    std::string_view name;  ///< "flow": its use of result_place::chart, and its name in JSON
};

std::span<const chart_row> chart_rows();
const chart_row& row_of(chart_kind kind);
/// The row of a window, or nullptr.
const chart_row* find_chart(std::string_view form);

/// The colours of the curves by series, 1 .. 5 at index 0 .. 4; the one curve of the ripple has the
/// first.
rgb_colour series_colour(int series);

struct chart_curve {
    int series = 1;              ///< 1 .. 5: its colour
    std::string legend;          ///< "1600"; empty without a legend
    std::string name;            ///< with its unit, for readers: "1600 rpm", "3.6 bar"
    std::vector<double> values;  ///< in the units shown, one a point
    std::vector<double> x{};     ///< of dots: where they stand on the x axis, in its unit
    /// Of dots: those that a ring sets off, by their indexes.
    std::vector<std::size_t> ringed{};
};

/// A curve of the pinned design, dashed in the colour of its series.
struct pinned_curve {
    int series = 1;
    std::vector<double> steps;   ///< where its points stand on the x axis, as first_step + k
    std::vector<double> values;  ///< in the units shown
};

/// A line between two dots, in the units shown.
struct chart_link {
    int series = 1;
    double x1 = 0.0, value1 = 0.0, x2 = 0.0, value2 = 0.0;
};

/// A number beside an axis. Those of the x axis stand at equal distances from its left end to its
/// right.
struct chart_mark {
    double value = 0.0;  ///< where it stands on the y axis; what it stands for on the x axis
    std::string text;
    std::string exact;  ///< the whole number with its unit where the text cuts it, else empty
};

struct result_chart {
    chart_kind kind = chart_kind::flow;
    std::string window_caption;  ///< English in both languages
    std::string title;
    std::string title_hint;  ///< tooltip of the title; the speed of the stress chart, else empty
    std::string x_title;
    std::string legend_caption;  ///< empty without a legend
    std::string legend_hint;     ///< tooltip: which speed or pressure is not drawn
    std::string file_ending;     ///< ". Pump Flow.bmp"

    /// Point k of a curve stands at X1 + (X2 - X1) * (first_step + k) / steps.
    int first_step = 0;
    int steps = 5;
    std::vector<double> x_values;  ///< what point k stands for, in the unit of the x axis
    bool is_of_dots = false;       ///< points have places of their own, and no lines between them
    double x_minimum = 0.0, x_maximum = 1.0;  ///< ends of the x axis of points with own places
    std::string x_unit, y_unit;               ///< "bar", "°", "Lit/min", "%"
    double y_times = 1.0;  ///< 100 for an efficiency, whose values are ratios and are read in %

    std::vector<chart_curve> curves;
    std::vector<chart_link> links;
    double minimum = 0.0, maximum = 1.0;  ///< values at the ends of the y axis, maximum > minimum
    std::vector<chart_mark> y_marks;      ///< from the bottom up
    std::vector<chart_mark> x_marks;

    std::vector<pinned_curve> pinned;  ///< with_pinned_curves
    std::string pinned_note;           ///< whose they are; empty without them
};

/// A chart of the results as they stand; a copy, which later runs and changes of language or units
/// do not touch.
result_chart make_chart(chart_kind kind, const perf_results& results, std::int16_t language,
                        unit_system system);

}  // namespace kvt
