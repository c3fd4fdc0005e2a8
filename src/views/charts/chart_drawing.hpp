// chart_drawing: where everything of a chart stands in a window of a size, as plain data in twips;
// a widget only paints it. Source: docs/formulas/charts.md, "Places".
#pragma once

#include "geometry/point2.hpp"
#include "views/charts/result_chart.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// Twips; of the whole window. What is drawn on, the client area, is smaller by CHART_FRAME.
struct chart_size {
    double width = 8790.0, height = 6630.0;
};
inline constexpr chart_size CHART_FRAME = {120.0, 405.0};
inline constexpr chart_size SMALLEST_CHART = {3000.0, 2400.0};

struct chart_box {
    double left = 0.0, top = 0.0, width = 0.0, height = 0.0;

    friend bool operator==(const chart_box&, const chart_box&) = default;
};

enum class chart_alignment { left, right, centre };

/// A text in its box.
struct chart_label {
    chart_box box;
    std::string text;
    std::string hint;  ///< tooltip
    chart_alignment alignment = chart_alignment::left;
    bool visible = true;  ///< false where it would lie over its neighbour
};

struct chart_segment {
    int series = 1;
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
};

/// A point that stands for itself.
struct chart_dot {
    int series = 1;
    point2 place;
    bool is_ringed = false;
};

struct chart_line {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
};

struct legend_row {
    int series = 1;
    chart_box square;  ///< inside the frame
    chart_label label;
};

struct chart_legend {
    chart_box frame;
    chart_label caption;  ///< inside the frame
    std::vector<legend_row> rows;
};

struct chart_drawing {
    chart_line X_axis, Y_axis;  ///< from left to right; from the top, y0, to the bottom, y1
    chart_box Picture1;         ///< the plot's background
    std::vector<chart_line> yaxis_tickmark;
    std::vector<chart_label> yaxis_marker, xaxis_marker;
    chart_label xaxis_title, graph_title;
    std::vector<chart_segment> graph_line;     ///< in the order of the curves
    std::vector<chart_dot> dots;               ///< likewise
    std::vector<chart_segment> pinned_line;    ///< dashed, cut at the ends of X_axis
    chart_label pinned_note;                   ///< inside Picture1; empty without pinned curves
    std::optional<chart_legend> legend_frame;  ///< none in the ripple chart
};

/// The room that a text takes, twips.
struct text_extent {
    double width = 0.0, height = 0.0;
};
using text_metrics = std::function<text_extent(std::string_view text)>;

/// Everything of a chart in a window of a size. moved_legend is the upper left corner of the
/// legend's frame after the user moved it; without it the frame keeps its place from the right end
/// of the X axis. With metrics, marks that would overlap are hidden, every second one first, and a
/// text wider than its room is elided, with the whole text as its hint.
chart_drawing draw_chart(const result_chart& chart, const chart_size& size,
                         const std::optional<point2>& moved_legend = std::nullopt,
                         const text_metrics& metrics = {});

/// A point of a curve, by their indexes in result_chart.
struct chart_reading {
    std::size_t curve = 0, point = 0;

    friend bool operator==(const chart_reading&, const chart_reading&) = default;
};

/// hidden_curves[i] tells that curve i, of series i + 1, is not shown; curves behind its end are.
using hidden_curves = std::vector<bool>;
bool is_hidden(const hidden_curves& hidden, std::size_t curve);

/// The point of the visible curves that lies nearest to a place, twips; nothing when no curve is
/// visible or the nearest lies farther away than reach.
std::optional<chart_reading> nearest_reading(const result_chart& chart,
                                             const chart_drawing& drawing, point2 place,
                                             const hidden_curves& hidden, double reach);

/// Where a point of a curve stands, twips.
point2 place_of(const result_chart& chart, const chart_drawing& drawing,
                const chart_reading& reading);

/// "41.2 Lit/min": a value of a curve with the decimals that tell the marks of the y axis apart.
std::string value_text(const result_chart& chart, double value);

/// What a point of a curve stands for on the x axis, in its unit.
double x_value(const result_chart& chart, const chart_reading& reading);

/// "1600 rpm, 3.6 bar: 41.2 Lit/min"
std::string reading_text(const result_chart& chart, const chart_reading& reading);

/// A place of the legend's frame that leaves at least 200 twips of it inside the client area.
point2 kept_inside(const chart_drawing& drawing, point2 corner, const chart_size& size);

}  // namespace kvt
