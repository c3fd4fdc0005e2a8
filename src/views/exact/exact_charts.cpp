#include "views/exact/exact_charts.hpp"

#include "base/decimal_mark.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "views/charts/axis_marks.hpp"
#include "views/exact/exact_units.hpp"

#include <algorithm>
#include <functional>
#include <numbers>
#include <string>

namespace kvt {

namespace {

constexpr double FULL_TURN_DEG = 360.0;
constexpr int X_MARKS = 5;

constexpr std::array ROWS = {
    exact_chart_row{exact_chart::volume, "volume_chart", exact_part::curves, true},
    exact_chart_row{exact_chart::flow, "flow_chart", exact_part::curves, false},
    exact_chart_row{exact_chart::areas, "area_chart", exact_part::timing, true},
    exact_chart_row{exact_chart::speeds, "speed_chart", exact_part::timing, true},
    exact_chart_row{exact_chart::gaps, "gap_chart", exact_part::gap, false}};

/// What make_exact_chart is asked, handed on to its steps.
struct asked_chart {
    const exact_chart_row& row;
    const exact_source& source;
    const exact_results& exact;
    const exact_manner& manner;
};

std::string text_of(const asked_chart& asked, std::string_view name) {
    return std::string(form_text("exact_figures", name, asked.manner.language));
}

void add_curve(const asked_chart& asked, std::string_view name, std::vector<double> values,
               result_chart& chart) {
    const std::string text = text_of(asked, name);
    chart.curves.push_back(
        {static_cast<int>(chart.curves.size()) + 1, text, text, std::move(values)});
}

/// A value a step of the life, the first again at its end.
std::vector<double> over_life(const std::vector<chamber_opening>& life,
                              const std::function<double(const chamber_opening&)>& value) {
    std::vector<double> values;
    for (const chamber_opening& opening : life) {
        values.push_back(value(opening));
    }
    values.push_back(values.front());
    return values;
}

std::vector<double> scaled_life(std::vector<double> values, double by) {
    values.push_back(values.front());
    for (double& value : values) {
        value *= by;
    }
    return values;
}

/// The end of the x axis, degrees.
double end_of(const asked_chart& asked) {
    switch (asked.row.chart) {
        case exact_chart::flow:
            return asked.exact.flow.end * DEGREES_PER_RADIAN;
        case exact_chart::gaps:
            return FULL_TURN_DEG;
        default:
            return asked.exact.volume.end * DEGREES_PER_RADIAN;
    }
}

void set_x_axis(const asked_chart& asked, std::string_view title, result_chart& chart) {
    chart.x_title = text_of(asked, title);
    chart.x_unit = "°";
    chart.steps = static_cast<int>(chart.curves.front().values.size()) - 1;
    const double end = end_of(asked);
    for (int k = 0; k <= chart.steps; ++k) {
        chart.x_values.push_back(end * k / chart.steps);
    }
    for (int j = 0; j <= X_MARKS; ++j) {
        const double angle = end * j / X_MARKS;
        chart.x_marks.push_back(mark_of(angle, rounded_text(angle, ANGLE_DECIMALS), chart.x_unit));
    }
}

/// From 0, or from below it, or from the least of curves that stay far above it, to the largest.
void set_y_axis(bool begins_at_zero, result_chart& chart) {
    double least = chart.curves.front().values.front();
    double largest = least;
    for (const chart_curve& curve : chart.curves) {
        const auto [low, high] = std::ranges::minmax(curve.values);
        least = std::min(least, low);
        largest = std::max(largest, high);
    }
    chart.minimum = begins_at_zero ? std::min(0.0, least) : least;
    chart.maximum = largest;
    if (!(chart.maximum - chart.minimum > 0.0)) {
        chart.maximum = chart.minimum + 1.0;
    }
    chart.y_marks = computed_marks(chart.minimum, chart.maximum, chart.y_unit);
}

void fill_volume(const asked_chart& asked, result_chart& chart) {
    chart.y_unit = "mm³";
    add_curve(asked, "volume_curve", asked.exact.volume.values, chart);
    set_x_axis(asked, "place_axis", chart);
    set_y_axis(true, chart);
}

void fill_flow(const asked_chart& asked, result_chart& chart) {
    constexpr double PERCENT = 100.0;
    chart.y_unit = "%";
    std::vector<double> values = asked.exact.flow.values;
    for (double& value : values) {
        value *= PERCENT;
    }
    add_curve(asked, "flow_curve", std::move(values), chart);
    set_x_axis(asked, "turn_axis", chart);
    set_y_axis(false, chart);
}

void fill_areas(const asked_chart& asked, result_chart& chart) {
    const std::vector<chamber_opening>& life = asked.exact.timing.life;
    chart.y_unit = "mm²";
    chart.legend_caption = text_of(asked, "legend_frame");
    add_curve(asked, "inlet_curve", over_life(life, [](auto& at) { return at.inlet; }), chart);
    add_curve(asked, "outlet_curve", over_life(life, [](auto& at) { return at.outlet; }), chart);
    if (asked.source.which.has_groove) {
        add_curve(asked, "groove_curve", over_life(life, [](auto& at) { return at.groove; }),
                  chart);
    }
    set_x_axis(asked, "place_axis", chart);
    set_y_axis(true, chart);
}

void fill_speeds(const asked_chart& asked, result_chart& chart) {
    const port_timing& timing = asked.exact.timing;
    const oil_speed_unit unit = oil_speed_unit_of(asked.manner.unit.system);
    const double rpm =
        asked.source.has_performance ? asked.source.inputs.speed_hi : RPM_WITHOUT_RANGE;
    const double by = rpm * RADIANS_A_SECOND_PER_RPM / unit.mm;
    chart.y_unit = unit.text;
    chart.title += number_text(rpm) + " " +
                   std::string(message_text(message::unit_rpm, asked.manner.language)) + " (" +
                   chart.y_unit + ")";
    chart.legend_caption = text_of(asked, "legend_speed");
    add_curve(asked, "inlet_curve", scaled_life(timing.inlet_speeds.of_chamber, by), chart);
    add_curve(asked, "outlet_curve", scaled_life(timing.outlet_speeds.of_chamber, by), chart);
    add_curve(asked, "inlet_port_curve", scaled_life(timing.inlet_speeds.of_port, by), chart);
    add_curve(asked, "outlet_port_curve", scaled_life(timing.outlet_speeds.of_port, by), chart);
    set_x_axis(asked, "place_axis", chart);
    set_y_axis(true, chart);
}

void fill_gaps(const asked_chart& asked, result_chart& chart) {
    const length_unit& unit = asked.manner.unit;
    chart.y_unit = message_text(unit.short_name, asked.manner.language);
    chart.title += " (" + chart.y_unit + ")";
    std::vector<double> values;
    for (const double gap : asked.exact.gap.gap) {
        values.push_back(unit.from_mm(gap));
    }
    add_curve(asked, "gap_curve", std::move(values), chart);
    set_x_axis(asked, "lobe_axis", chart);
    set_y_axis(true, chart);
}

void fill(const asked_chart& asked, result_chart& chart) {
    switch (asked.row.chart) {
        case exact_chart::volume:
            return fill_volume(asked, chart);
        case exact_chart::flow:
            return fill_flow(asked, chart);
        case exact_chart::areas:
            return fill_areas(asked, chart);
        case exact_chart::speeds:
            return fill_speeds(asked, chart);
        case exact_chart::gaps:
            return fill_gaps(asked, chart);
    }
}

}  // namespace

std::span<const exact_chart_row> exact_chart_rows() {
    return ROWS;
}

std::optional<result_chart> make_exact_chart(const exact_chart_row& row, const exact_source& source,
                                             const exact_results& exact,
                                             const exact_manner& manner) {
    if (!exact.has(row.part)) {
        return std::nullopt;
    }
    const asked_chart asked{row, source, exact, manner};
    result_chart chart;
    chart.window_caption = text_of(asked, row.name);
    chart.title = text_of(asked, std::string(row.name) + "_title");
    chart.file_ending = ". " + chart.window_caption + ".bmp";
    fill(asked, chart);
    return chart;
}

}  // namespace kvt
