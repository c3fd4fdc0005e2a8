// The places of everything in a chart, and the readings of its curves.
#include "views/charts/chart_drawing.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "base/utf8_text.hpp"
#include "views/charts/axis_marks.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace kvt {

namespace {

constexpr chart_size DEFAULT_SIZE;

// At the default size; lengths across scale with the width, lengths down with the height.
constexpr double AXIS_LEFT = 720.0;
constexpr double AXIS_RIGHT = 7920.0;
constexpr double AXIS_TOP = 600.0;
constexpr double AXIS_BOTTOM = 5300.0;
constexpr double X_TITLE_TOP = 5760.0;
constexpr double TITLE_TOP = 150.0;
constexpr double Y_MARKER_LEFT = 60.0;

// The same at every size.
constexpr double LABEL_HEIGHT = 220.0;
constexpr double TICK_LENGTH = 90.0;
constexpr double Y_MARKER_TO_AXIS = 120.0;
constexpr double Y_MARKER_RISE = 110.0;
constexpr double X_MARKER_BEFORE = 140.0;
constexpr double X_MARKER_BELOW = 80.0;
constexpr double X_MARKER_WIDTH = 600.0;
constexpr double NOTE_INSIDE = 60.0;
constexpr double LEGEND_BEFORE_END = 1620.0;
constexpr double LEGEND_BELOW_TOP = 100.0;
constexpr double LEGEND_WIDTH = 1500.0;
constexpr double LEGEND_CAPTION_LEFT = 60.0;
constexpr double LEGEND_CAPTION_TOP = 40.0;
constexpr double LEGEND_LABEL_LEFT = 400.0;
constexpr double LEGEND_SQUARE_LEFT = 120.0;
constexpr double LEGEND_FIRST_SQUARE = 300.0;
constexpr double LEGEND_SQUARE = 180.0;
constexpr double LEGEND_ROW = 270.0;
constexpr double LEGEND_WITHOUT_ROWS = 360.0;
constexpr double LEGEND_KEPT_INSIDE = 200.0;

constexpr std::string_view ELLIPSIS = "…";

chart_size client_area(const chart_size& size) {
    return {size.width - CHART_FRAME.width, size.height - CHART_FRAME.height};
}

/// The axes of a chart and the formulas of its places.
///     x = X1 + (X2 - X1) step / steps      y = y1 - (y1 - y0) / (maximum - minimum) (value -
///     minimum)
struct chart_axes {
    double X1, X2, y0, y1;
    double minimum, maximum;

    double x(double step, double steps) const { return X1 + (X2 - X1) * step / steps; }
    double y(double value) const {
        return y1 - (y1 - y0) / (maximum - minimum) * (value - minimum);
    }
};

chart_axes axes_at(const result_chart& chart, double fx, double fy) {
    return {AXIS_LEFT * fx,   AXIS_RIGHT * fx, AXIS_TOP * fy,
            AXIS_BOTTOM * fy, chart.minimum,   chart.maximum};
}

chart_axes axes_of(const result_chart& chart, const chart_drawing& drawing) {
    return {drawing.X_axis.x1, drawing.X_axis.x2, drawing.Y_axis.y1,
            drawing.Y_axis.y2, chart.minimum,     chart.maximum};
}

/// Of a point with a place of its own:
///     X1 + (X2 - X1) (x - x_minimum) / (x_maximum - x_minimum)
double x_on(const chart_axes& axes, const result_chart& chart, double x) {
    return axes.x(x - chart.x_minimum, chart.x_maximum - chart.x_minimum);
}

point2 place_on(const chart_axes& axes, const result_chart& chart, const chart_curve& curve,
                std::size_t point) {
    if (chart.is_of_dots) {
        return {x_on(axes, chart, curve.x[point]), axes.y(curve.values[point])};
    }
    const int step = chart.first_step + static_cast<int>(point);
    return {axes.x(step, chart.steps), axes.y(curve.values[point])};
}

/// The longest beginning of a text that leaves room for the ellipsis behind it.
std::string elided(std::string text, double room, const text_metrics& metrics) {
    while (!text.empty() && metrics(text + std::string(ELLIPSIS)).width > room) {
        drop_last_character(text);
    }
    return text + std::string(ELLIPSIS);
}

/// Cuts the text of a label that is wider than its room; the tooltip then begins with the whole of
/// it.
void fit(chart_label& label, double room, const text_metrics& metrics) {
    if (!metrics || metrics(label.text).width <= room) {
        return;
    }
    label.hint = label.hint.empty() ? label.text : label.text + "\n" + label.hint;
    label.text = elided(label.text, room, metrics);
}

void fit_in_box(chart_label& label, const text_metrics& metrics) {
    fit(label, label.box.width, metrics);
}

/// Shows every mark, or every second, fourth .. so that no two of them overlap. The last always
/// stays, and what lies over it goes.
template <typename overlap_test>
void thin_out(std::vector<chart_label>& marks, const overlap_test& overlap) {
    const std::size_t last = marks.size() - 1;
    const auto crowded = [&](std::size_t every) {
        for (std::size_t i = 0; i + every < last; i += every) {
            if (overlap(marks[i], marks[i + every])) {
                return true;
            }
        }
        return false;
    };
    std::size_t every = 1;
    while (crowded(every)) {
        every *= 2;
    }
    for (std::size_t i = 0; i < last; ++i) {
        marks[i].visible = i % every == 0 && (i == 0 || !overlap(marks[i], marks[last]));
    }
}

// The y axis.

void add_y_markers(const result_chart& chart, const chart_axes& axes, double fx,
                   chart_drawing& drawing) {
    const double left = Y_MARKER_LEFT * fx;
    const double width = axes.X1 - Y_MARKER_TO_AXIS - left;
    for (const chart_mark& mark : chart.y_marks) {
        // The formula may miss the end of the axis by its last digit.
        const double y = mark.value == chart.maximum ? axes.y0 : axes.y(mark.value);
        drawing.yaxis_tickmark.push_back({axes.X1 - TICK_LENGTH, y, axes.X1, y});
        const chart_box box{left, floor_to_int(y) - Y_MARKER_RISE, width, LABEL_HEIGHT};
        drawing.yaxis_marker.push_back({box, mark.text, mark.exact, chart_alignment::right});
    }
}

void fit_y_markers(const text_metrics& metrics, chart_drawing& drawing) {
    thin_out(drawing.yaxis_marker, [&](const chart_label& below, const chart_label& above) {
        const double height = std::max(metrics(below.text).height, metrics(above.text).height);
        return std::abs(below.box.top - above.box.top) < height;
    });
    for (chart_label& label : drawing.yaxis_marker) {
        fit_in_box(label, metrics);
    }
}

// The x axis.

void add_x_markers(const result_chart& chart, const chart_axes& axes, chart_drawing& drawing) {
    const auto steps = static_cast<double>(chart.x_marks.size() - 1);
    for (const chart_mark& mark : chart.x_marks) {
        const auto step = static_cast<double>(drawing.xaxis_marker.size());
        const chart_box box{axes.x(step, steps) - X_MARKER_BEFORE, axes.y1 + X_MARKER_BELOW,
                            X_MARKER_WIDTH, LABEL_HEIGHT};
        drawing.xaxis_marker.push_back({box, mark.text, mark.exact});
    }
}

/// A text may take the way to the next one that is shown, the last one that to the window's edge.
void fit_shown_x_markers(double edge, const text_metrics& metrics,
                         std::vector<chart_label>& marks) {
    double end = edge;
    for (std::size_t i = marks.size(); i-- > 0;) {
        chart_label& label = marks[i];
        if (label.visible) {
            const double room = end - label.box.left;
            fit(label, room, metrics);
            label.box.width = std::min(room, std::max(label.box.width, metrics(label.text).width));
            end = label.box.left;
        }
    }
}

void fit_x_markers(const chart_size& size, const text_metrics& metrics, chart_drawing& drawing) {
    if (size.width < DEFAULT_SIZE.width) {
        thin_out(drawing.xaxis_marker, [&](const chart_label& before, const chart_label& after) {
            return before.box.left + metrics(before.text).width > after.box.left;
        });
    }
    fit_shown_x_markers(client_area(size).width, metrics, drawing.xaxis_marker);
}

// Titles.

void add_titles(const result_chart& chart, const chart_axes& axes, double fy,
                chart_drawing& drawing) {
    const double width = axes.X2 - axes.X1;
    const double title_top = std::max(0.0, std::min(TITLE_TOP * fy, axes.y0 - LABEL_HEIGHT));
    drawing.graph_title = {{axes.X1, title_top, width, LABEL_HEIGHT},
                           chart.title,
                           chart.title_hint,
                           chart_alignment::centre};
    drawing.xaxis_title = {{axes.X1, X_TITLE_TOP * fy, width, LABEL_HEIGHT},
                           chart.x_title,
                           {},
                           chart_alignment::centre};
}

/// In a low window the title of the x axis gives way to the numbers.
void fit_titles(const text_metrics& metrics, chart_drawing& drawing) {
    const double numbers_end = drawing.xaxis_marker.front().box.top + LABEL_HEIGHT;
    drawing.xaxis_title.visible = drawing.xaxis_title.box.top >= numbers_end;
    fit_in_box(drawing.xaxis_title, metrics);
    fit_in_box(drawing.graph_title, metrics);
}

// The legend.

legend_row row_of_curve(const chart_curve& curve, std::size_t index) {
    const double top = LEGEND_FIRST_SQUARE + LEGEND_ROW * static_cast<double>(index);
    const double label_top = top - (LABEL_HEIGHT - LEGEND_SQUARE) / 2.0;
    const chart_box square{LEGEND_SQUARE_LEFT, top, LEGEND_SQUARE, LEGEND_SQUARE};
    const chart_box label{LEGEND_LABEL_LEFT, label_top,
                          LEGEND_WIDTH - LEGEND_LABEL_LEFT - LEGEND_CAPTION_LEFT, LABEL_HEIGHT};
    return {curve.series, square, {label, curve.legend, curve.name}};
}

chart_legend legend_of(const result_chart& chart, const chart_axes& axes) {
    const double height =
        LEGEND_WITHOUT_ROWS + LEGEND_ROW * static_cast<double>(chart.curves.size());
    const chart_box caption{LEGEND_CAPTION_LEFT, LEGEND_CAPTION_TOP,
                            LEGEND_WIDTH - 2.0 * LEGEND_CAPTION_LEFT, LABEL_HEIGHT};
    chart_legend legend;
    legend.frame = {axes.X2 - LEGEND_BEFORE_END, axes.y0 + LEGEND_BELOW_TOP, LEGEND_WIDTH, height};
    legend.caption = {caption, chart.legend_caption, chart.legend_hint};
    for (const chart_curve& curve : chart.curves) {
        legend.rows.push_back(row_of_curve(curve, legend.rows.size()));
    }
    return legend;
}

void fit_legend(const text_metrics& metrics, chart_legend& legend) {
    fit_in_box(legend.caption, metrics);
    for (legend_row& row : legend.rows) {
        fit_in_box(row.label, metrics);
    }
}

void move_legend(const point2& corner, const chart_size& size, chart_drawing& drawing) {
    const point2 kept = kept_inside(drawing, corner, size);
    drawing.legend_frame->frame.left = kept.x;
    drawing.legend_frame->frame.top = kept.y;
}

// The curves.

void add_segments(const result_chart& chart, const chart_axes& axes, const chart_curve& curve,
                  chart_drawing& drawing) {
    point2 from = place_on(axes, chart, curve, 0);
    for (std::size_t k = 1; k < curve.values.size(); ++k) {
        const point2 to = place_on(axes, chart, curve, k);
        drawing.graph_line.push_back({curve.series, from.x, from.y, to.x, to.y});
        from = to;
    }
}

void add_dots(const result_chart& chart, const chart_axes& axes, const chart_curve& curve,
              chart_drawing& drawing) {
    const std::size_t before = drawing.dots.size();
    for (std::size_t k = 0; k < curve.values.size(); ++k) {
        drawing.dots.push_back({curve.series, place_on(axes, chart, curve, k)});
    }
    for (const std::size_t ringed : curve.ringed) {
        drawing.dots[before + ringed].is_ringed = true;
    }
}

void add_links(const result_chart& chart, const chart_axes& axes, chart_drawing& drawing) {
    for (const chart_link& link : chart.links) {
        drawing.graph_line.push_back({link.series, x_on(axes, chart, link.x1), axes.y(link.value1),
                                      x_on(axes, chart, link.x2), axes.y(link.value2)});
    }
}

// The pinned design.

/// Part of a curve between two of its points, in steps of the x axis.
struct curve_part {
    double step1, value1, step2, value2;

    double value_at(double step) const {
        return value1 + (value2 - value1) * (step - step1) / (step2 - step1);
    }
};

/// What of it lies over the axis; nothing when none does.
std::optional<curve_part> cut_to_axis(const curve_part& part, double steps) {
    if (!(part.step1 < part.step2) || part.step2 <= 0.0 || part.step1 >= steps) {
        return std::nullopt;
    }
    curve_part cut = part;
    if (part.step1 < 0.0) {
        cut.step1 = 0.0;
        cut.value1 = part.value_at(0.0);
    }
    if (part.step2 > steps) {
        cut.step2 = steps;
        cut.value2 = part.value_at(steps);
    }
    return cut;
}

void add_pinned_segments(const chart_axes& axes, double steps, const pinned_curve& curve,
                         chart_drawing& drawing) {
    for (std::size_t k = 1; k < curve.values.size(); ++k) {
        const auto part = cut_to_axis(
            {curve.steps[k - 1], curve.values[k - 1], curve.steps[k], curve.values[k]}, steps);
        if (part) {
            drawing.pinned_line.push_back({curve.series, axes.x(part->step1, steps),
                                           axes.y(part->value1), axes.x(part->step2, steps),
                                           axes.y(part->value2)});
        }
    }
}

/// In the lower left corner of the plot.
void add_pinned_note(const result_chart& chart, const chart_axes& axes, chart_drawing& drawing) {
    drawing.pinned_note = {{axes.X1 + NOTE_INSIDE, axes.y1 - NOTE_INSIDE - LABEL_HEIGHT,
                            axes.X2 - axes.X1 - 2.0 * NOTE_INSIDE, LABEL_HEIGHT},
                           chart.pinned_note,
                           {}};
}

void add_pinned(const result_chart& chart, const chart_axes& axes, chart_drawing& drawing) {
    for (const pinned_curve& curve : chart.pinned) {
        add_pinned_segments(axes, chart.steps, curve, drawing);
    }
    add_pinned_note(chart, axes, drawing);
}

void fit_texts(const chart_size& size, const text_metrics& metrics, chart_drawing& drawing) {
    fit_y_markers(metrics, drawing);
    fit_x_markers(size, metrics, drawing);
    fit_titles(metrics, drawing);
    fit_in_box(drawing.pinned_note, metrics);
    if (drawing.legend_frame) {
        fit_legend(metrics, *drawing.legend_frame);
    }
}

/// "3.6 bar", "36.1°"
std::string with_unit(const std::string& number, const std::string& unit) {
    return unit == "°" || unit.empty() ? number + unit : number + " " + unit;
}

}  // namespace

chart_drawing draw_chart(const result_chart& chart, const chart_size& size,
                         const std::optional<point2>& moved_legend, const text_metrics& metrics) {
    const double fx = size.width / DEFAULT_SIZE.width;
    const double fy = size.height / DEFAULT_SIZE.height;
    const chart_axes axes = axes_at(chart, fx, fy);
    chart_drawing drawing;
    drawing.X_axis = {axes.X1, axes.y1, axes.X2, axes.y1};
    drawing.Y_axis = {axes.X1, axes.y0, axes.X1, axes.y1};
    drawing.Picture1 = {axes.X1, axes.y0, axes.X2 - axes.X1, axes.y1 - axes.y0};
    add_y_markers(chart, axes, fx, drawing);
    add_x_markers(chart, axes, drawing);
    add_titles(chart, axes, fy, drawing);
    for (const chart_curve& curve : chart.curves) {
        if (!chart.is_of_dots) {
            add_segments(chart, axes, curve, drawing);
        } else {
            add_dots(chart, axes, curve, drawing);
        }
    }
    add_links(chart, axes, drawing);
    add_pinned(chart, axes, drawing);
    if (!chart.legend_caption.empty()) {
        drawing.legend_frame = legend_of(chart, axes);
    }
    if (drawing.legend_frame && moved_legend) {
        move_legend(*moved_legend, size, drawing);
    }
    if (metrics) {
        fit_texts(size, metrics, drawing);
    }
    return drawing;
}

bool is_hidden(const hidden_curves& hidden, std::size_t curve) {
    return curve < hidden.size() && hidden[curve];
}

std::optional<chart_reading> nearest_reading(const result_chart& chart,
                                             const chart_drawing& drawing, point2 place,
                                             const hidden_curves& hidden, double reach) {
    const chart_axes axes = axes_of(chart, drawing);
    std::optional<chart_reading> nearest;
    double least = reach;
    for (std::size_t curve = 0; curve < chart.curves.size(); ++curve) {
        const std::size_t points = is_hidden(hidden, curve) ? 0 : chart.curves[curve].values.size();
        for (std::size_t k = 0; k < points; ++k) {
            const double away = distance(place, place_on(axes, chart, chart.curves[curve], k));
            if (away < least || (!nearest && away == reach)) {
                least = away;
                nearest = {curve, k};
            }
        }
    }
    return nearest;
}

point2 place_of(const result_chart& chart, const chart_drawing& drawing,
                const chart_reading& reading) {
    return place_on(axes_of(chart, drawing), chart, chart.curves[reading.curve], reading.point);
}

std::string value_text(const result_chart& chart, double value) {
    const double step = mark_step((chart.maximum - chart.minimum) * chart.y_times);
    return with_unit(rounded_text(value * chart.y_times, mark_decimals(step)), chart.y_unit);
}

double x_value(const result_chart& chart, const chart_reading& reading) {
    const chart_curve& curve = chart.curves[reading.curve];
    return chart.is_of_dots ? curve.x[reading.point] : chart.x_values[reading.point];
}

std::string reading_text(const result_chart& chart, const chart_reading& reading) {
    const chart_curve& curve = chart.curves[reading.curve];
    return curve.name + ", " + with_unit(number_text(x_value(chart, reading)), chart.x_unit) +
           ": " + value_text(chart, curve.values[reading.point]);
}

point2 kept_inside(const chart_drawing& drawing, point2 corner, const chart_size& size) {
    if (!drawing.legend_frame) {
        return corner;
    }
    const chart_box& frame = drawing.legend_frame->frame;
    const chart_size client = client_area(size);
    return {
        std::clamp(corner.x, LEGEND_KEPT_INSIDE - frame.width, client.width - LEGEND_KEPT_INSIDE),
        std::clamp(corner.y, LEGEND_KEPT_INSIDE - frame.height,
                   client.height - LEGEND_KEPT_INSIDE)};
}

}  // namespace kvt
