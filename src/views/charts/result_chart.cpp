// The charts as a table, and what a chart takes out of the results and the text table.
#include "views/charts/result_chart.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "performance/result_quantities.hpp"
#include "views/charts/axis_marks.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kvt {

namespace {

constexpr std::array CHARTS = {
    chart_row{chart_kind::flow, "FLOW_graphview2", "flow"},
    chart_row{chart_kind::power, "LOAD_graphview2", "power"},
    chart_row{chart_kind::stress, "HERTZ_graphview2", "stress"},
    chart_row{chart_kind::ripple, "PRESS_RIP_graphview2", "ripple"},
    chart_row{chart_kind::ve, "VE_graphview2", "ve"},
    chart_row{chart_kind::mech, "EFFIC_graphview2", "mech"},
    chart_row{chart_kind::overall, "OVREFF_graphview2", "overall"},
};

/// What the y axis of a chart covers: the extremes of the whole result, 0 without a lowest; the
/// ratios 0 to 1 without a highest.
struct axis_row {
    std::string_view metric_unit, imperial_unit;
    result_value lowest = nullptr, highest = nullptr;
};

constexpr axis_row PERCENT_AXIS = {"%", "%"};

/// In the order of CHARTS.
constexpr std::array<axis_row, CHARTS.size()> AXES = {{
    {"Lit/min", "USGall/min", &perf_results::flow_min, &perf_results::flow_max},
    {"KW", "HP", &perf_results::power_min, &perf_results::power_max},
    {"MPa", "Ksi", nullptr, &perf_results::hertz_max},
    {"bar", "psi", &perf_results::ripple_min, &perf_results::ripple_max},
    PERCENT_AXIS,
    PERCENT_AXIS,
    PERCENT_AXIS,
}};

constexpr std::array<rgb_colour, 5> COLOURS = {
    {{255, 255, 128}, {128, 255, 128}, {255, 192, 128}, {128, 255, 255}, {255, 128, 128}}};

/// The first speed, or pressure, that is drawn; the lowest is not.
constexpr std::size_t FIRST_SERIES = 1;
constexpr std::size_t TOP_SPEED = GRID_SIZE - 1;
/// The contact stress stands over half a turn of the inner rotor in degrees.
constexpr int HALF_TURN = 180;
constexpr int TURN = 360;
constexpr int RIPPLE_STEPS_A_DEGREE = 10;

/// What make_chart is asked, handed on to its steps.
struct chart_source {
    const chart_row& row;
    const perf_results& results;
    std::int16_t language;
    unit_system system;
};

/// The text of a control in the units of the chart: of the form's row, else of the one that the
/// charts have alike.
std::string text_of(const chart_source& from, std::string_view name) {
    const text_row* row = find_text(from.row.form, name, from.system);
    return std::string(row == nullptr ? form_text("charts", name, from.language, from.system)
                                      : row_text(*row, from.language));
}

/// The result that a chart draws.
used_result drawn_result(const chart_source& from) {
    return *result_named(result_place::chart, from.row.name);
}

double in_shown_units(const chart_source& from, double value) {
    return shown_value(value, *drawn_result(from).use, from.system);
}

std::string_view pressure_unit(const chart_source& from) {
    return from.system == unit_system::metric ? "bar" : "psi";
}

/// Pressure j of the grid, bar or psi.
double shown_pressure(const chart_source& from, std::size_t j) {
    return shown_value(from.results.press_pa[j], *result_at(result_place::chart, "press_pa")->use,
                       from.system);
}

/// The number of a pressure beside the axis and in the legend.
/// Kept: Int of a psi value cuts 299.99999999999994 to 299; result_chart_test holds it.
chart_mark pressure_mark(const chart_source& from, std::size_t j) {
    const double shown = shown_pressure(from, j);
    const bool is_cut = from.system == unit_system::imperial;
    return mark_of(shown, number_text(is_cut ? floor_to_int(shown) : shown), pressure_unit(from));
}

std::string speed_name(double rpm) {
    return number_text(rpm) + " rpm";
}

// Curves.

/// A curve a speed, over the pressures.
void add_speed_curves(const chart_source& from, result_chart& chart) {
    const used_result drawn = drawn_result(from);
    const perf_grid grid = grid_of(*drawn.quantity, from.results);
    for (std::size_t i = FIRST_SERIES; i < GRID_SIZE; ++i) {
        const double rpm = from.results.speed_rpm[i];
        chart_curve curve{static_cast<int>(i), number_text(rpm), speed_name(rpm), {}};
        for (const double value : grid[i]) {
            curve.values.push_back(shown_value(value, *drawn.use, from.system));
        }
        chart.curves.push_back(std::move(curve));
    }
}

/// The stress at the highest speed, a curve a pressure, over the angles 1 .. 179.
void add_stress_curves(const chart_source& from, result_chart& chart) {
    const result_use& use = *drawn_result(from).use;
    for (std::size_t j = FIRST_SERIES; j < GRID_SIZE; ++j) {
        const std::string name =
            number_text(shown_pressure(from, j)) + " " + std::string(pressure_unit(from));
        chart_curve curve{static_cast<int>(j), pressure_mark(from, j).text, name, {}};
        const perf_array& stress = from.results.hertz_stress[TOP_SPEED][j];
        for (std::size_t a = 1; a <= CONTACT_ANGLE_LAST; ++a) {
            curve.values.push_back(shown_value(stress[a], use, from.system));
        }
        chart.curves.push_back(std::move(curve));
    }
}

/// The pressure at every 0.1 degree of a turn at the lowest speed, the first one again at its end.
void add_ripple_curve(const chart_source& from, result_chart& chart) {
    const result_use& use = *drawn_result(from).use;
    chart_curve curve{1, {}, speed_name(from.results.speed_rpm[0]), {}};
    curve.values.reserve(RIPPLE_STEPS + 1);
    for (std::size_t t = 0; t <= RIPPLE_STEPS; ++t) {
        const double pressure = from.results.ripple_pressure[t % RIPPLE_STEPS];
        curve.values.push_back(shown_value(pressure, use, from.system));
    }
    chart.curves.push_back(std::move(curve));
}

void add_curves(const chart_source& from, result_chart& chart) {
    switch (from.row.kind) {
        case chart_kind::stress:
            return add_stress_curves(from, chart);
        case chart_kind::ripple:
            return add_ripple_curve(from, chart);
        default:
            return add_speed_curves(from, chart);
    }
}

// Axes.

/// 0 to degrees in five steps.
std::vector<chart_mark> angle_marks(int degrees) {
    std::vector<chart_mark> marks;
    for (int j = 0; j <= 5; ++j) {
        const double angle = degrees * j / 5.0;
        marks.push_back({angle, number_text(angle), {}});
    }
    return marks;
}

void set_pressure_axis(const chart_source& from, result_chart& chart) {
    chart.steps = static_cast<int>(GRID_SIZE) - 1;
    chart.x_unit = pressure_unit(from);
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        chart.x_values.push_back(shown_pressure(from, j));
        chart.x_marks.push_back(pressure_mark(from, j));
    }
}

/// An axis of degrees on which point k stands at (first + k) / a_degree.
void set_angle_axis(int degrees, int a_degree, int first, result_chart& chart) {
    chart.first_step = first;
    chart.steps = degrees * a_degree;
    chart.x_unit = "°";
    chart.x_marks = angle_marks(degrees);
    for (std::size_t k = 0; k < chart.curves.front().values.size(); ++k) {
        chart.x_values.push_back(static_cast<double>(first + static_cast<int>(k)) / a_degree);
    }
}

void set_x_axis(const chart_source& from, result_chart& chart) {
    chart.x_title = text_of(from, "xaxis_title");
    switch (from.row.kind) {
        case chart_kind::stress:
            return set_angle_axis(HALF_TURN, 1, 1, chart);
        case chart_kind::ripple:
            return set_angle_axis(TURN, RIPPLE_STEPS_A_DEGREE, 0, chart);
        default:
            return set_pressure_axis(from, chart);
    }
}

/// From the lowest to the highest of the whole result; one unit where all are alike.
void set_computed_axis(const chart_source& from, const axis_row& axis, result_chart& chart) {
    chart.minimum = axis.lowest == nullptr ? 0.0 : in_shown_units(from, from.results.*axis.lowest);
    chart.maximum = in_shown_units(from, from.results.*axis.highest);
    if (!(chart.maximum - chart.minimum > 0.0)) {
        chart.maximum = chart.minimum + 1.0;
    }
    chart.y_marks = computed_marks(chart.minimum, chart.maximum, chart.y_unit);
}

void set_y_axis(const chart_source& from, result_chart& chart) {
    const axis_row& axis = AXES[static_cast<std::size_t>(from.row.kind)];
    chart.y_unit = from.system == unit_system::metric ? axis.metric_unit : axis.imperial_unit;
    if (axis.highest != nullptr) {
        set_computed_axis(from, axis, chart);
        return;
    }
    chart.y_times = 100.0;
    chart.y_marks = percent_marks();
}

// Texts.

/// "Pressure Ripple (bar) @ 500rpm : Ripple = 3.25%"
std::string ripple_title(const chart_source& from) {
    return text_of(from, "graph_title") + number_text(from.results.speed_rpm[0]) +
           text_of(from, "graph_title_ripple") + number_text(from.results.ripple_percent) + "%";
}

void set_titles(const chart_source& from, result_chart& chart) {
    chart.window_caption = form_text(from.row.form, "", from.language);
    chart.file_ending = text_of(from, "file_ending");
    const bool is_ripple = from.row.kind == chart_kind::ripple;
    chart.title = is_ripple ? ripple_title(from) : text_of(from, "graph_title");
    if (from.row.kind == chart_kind::stress) {
        chart.title_hint =
            text_of(from, "graph_title_speed") + speed_name(from.results.speed_rpm[TOP_SPEED]);
    }
}

void set_legend_texts(const chart_source& from, result_chart& chart) {
    if (from.row.kind == chart_kind::ripple) {
        return;
    }
    chart.legend_caption = text_of(from, "legend_frame");
    chart.legend_hint = text_of(from, "legend_hint");
}

}  // namespace

std::span<const chart_row> chart_rows() {
    return CHARTS;
}

const chart_row& row_of(chart_kind kind) {
    return CHARTS[static_cast<std::size_t>(kind)];
}

const chart_row* find_chart(std::string_view form) {
    const auto* const found = std::ranges::find(CHARTS, form, &chart_row::form);
    return found == CHARTS.end() ? nullptr : found;
}

rgb_colour series_colour(int series) {
    return COLOURS.at(static_cast<std::size_t>(series - 1));
}

result_chart make_chart(chart_kind kind, const perf_results& results, std::int16_t language,
                        unit_system system) {
    const chart_source from{row_of(kind), results, language, system};
    result_chart chart;
    chart.kind = kind;
    set_titles(from, chart);
    set_legend_texts(from, chart);
    add_curves(from, chart);
    set_x_axis(from, chart);
    set_y_axis(from, chart);
    return chart;
}

}  // namespace kvt
