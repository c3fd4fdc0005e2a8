#include "app/study/study_chart.hpp"

#include "core/text_table.hpp"
#include "views/charts/axis_marks.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

namespace kvt {

namespace {

constexpr std::size_t COLOURS = 5;
constexpr int X_MARKS = 5;

/// A design with the numbers of its axes.
struct placed_design {
    std::size_t place;  ///< of its row
    double x, y, colour;
};

struct range {
    double least = HUGE_VAL, largest = -HUGE_VAL;

    void take(double value) {
        least = std::min(least, value);
        largest = std::max(largest, value);
    }
    /// With some length, also where all values are the same.
    range widened() const { return largest > least ? *this : range{least - 0.5, largest + 0.5}; }
    double length() const { return largest - least; }
};

std::vector<placed_design> dots_of(const study_table& table, const study_axes& axes) {
    std::vector<placed_design> dots;
    for (std::size_t place = 0; place < table.shown_count(); ++place) {
        const auto x = table.number(place, axes.x);
        const auto y = table.number(place, axes.y);
        const auto colour = axes.colour ? table.number(place, *axes.colour) : std::optional(0.0);
        if (x && y && colour) {
            dots.push_back({place, *x, *y, *colour});
        }
    }
    std::ranges::stable_sort(dots, {}, &placed_design::x);
    return dots;
}

range range_of(const std::vector<placed_design>& dots, double placed_design::*number) {
    range all;
    for (const placed_design& one : dots) {
        all.take(one.*number);
    }
    return all;
}

/// The fifth of the range in which a colour lies: Int(5 (value - least) / (largest - least)).
std::size_t colour_of(double value, const range& colours) {
    if (!(colours.length() > 0.0)) {
        return 0;
    }
    const double fifth = std::floor((value - colours.least) / colours.length() * COLOURS);
    return static_cast<std::size_t>(std::clamp(fifth, 0.0, static_cast<double>(COLOURS - 1)));
}

std::string colour_text(const range& colours, std::size_t fifth) {
    const double step = colours.length() / static_cast<double>(COLOURS);
    const auto text = [&](std::size_t end) {
        return rounded_text(colours.least + step * static_cast<double>(end), mark_decimals(step));
    };
    return text(fifth) + " – " + text(fifth + 1);
}

/// The curves before they have points.
void add_curves(const study_table& table, const study_axes& axes, const range& colours,
                std::int16_t language, study_chart& made) {
    const bool has_colours = axes.colour && colours.length() > 0.0;
    made.chart.legend_caption = axes.colour
                                    ? table.name(*axes.colour)
                                    : std::string(form_text("study_form", "all_designs", language));
    for (std::size_t fifth = 0; fifth < (has_colours ? COLOURS : 1); ++fifth) {
        chart_curve curve;
        curve.series = static_cast<int>(fifth) + 1;
        curve.legend = has_colours ? colour_text(colours, fifth) : "";
        curve.name = made.chart.legend_caption + (curve.legend.empty() ? "" : " " + curve.legend);
        made.chart.curves.push_back(std::move(curve));
    }
    made.designs.resize(made.chart.curves.size());
}

void add_dots(const study_table& table, const std::vector<placed_design>& dots,
              const range& colours, study_chart& made) {
    for (const placed_design& one : dots) {
        const std::size_t fifth =
            made.chart.curves.size() == 1 ? 0 : colour_of(one.colour, colours);
        chart_curve& curve = made.chart.curves[fifth];
        if (table.is_in_front(one.place)) {
            curve.ringed.push_back(curve.values.size());
        }
        curve.x.push_back(one.x);
        curve.values.push_back(one.y);
        made.designs[fifth].push_back(table.shown(one.place).number);
    }
}

/// The texts of all variables but one.
std::vector<std::string> other_texts(const study_row& row, std::size_t along) {
    std::vector<std::string> texts = row.texts;
    texts[along - 1].clear();
    return texts;
}

void add_links(const study_table& table, const std::vector<placed_design>& dots, std::size_t along,
               const range& colours, study_chart& made) {
    std::map<std::vector<std::string>, std::vector<placed_design>> groups;
    for (const placed_design& one : dots) {
        groups[other_texts(table.shown(one.place), along)].push_back(one);
    }
    const bool has_colours = made.chart.curves.size() > 1;
    for (auto& [texts, group] : groups) {
        std::ranges::stable_sort(group, {}, [&](const placed_design& one) {
            return table.number(one.place, along).value_or(0.0);
        });
        for (std::size_t i = 1; i < group.size(); ++i) {
            const placed_design& from = group[i - 1];
            const std::size_t fifth = has_colours ? colour_of(from.colour, colours) : 0;
            made.chart.links.push_back(
                {static_cast<int>(fifth) + 1, from.x, from.y, group[i].x, group[i].y});
        }
    }
}

void set_axes(const study_table& table, const study_axes& axes,
              const std::vector<placed_design>& dots, result_chart& chart) {
    const range x = range_of(dots, &placed_design::x).widened();
    const range y = range_of(dots, &placed_design::y).widened();
    chart.x_minimum = x.least;
    chart.x_maximum = x.largest;
    chart.minimum = y.least;
    chart.maximum = y.largest;
    chart.x_unit = table.unit(axes.x);
    chart.y_unit = table.unit(axes.y);
    chart.x_title = table.heading(axes.x);
    chart.title = table.heading(axes.y);
    chart.y_marks = computed_marks(chart.minimum, chart.maximum, chart.y_unit);
    const double step = x.length() / X_MARKS;
    for (int i = 0; i <= X_MARKS; ++i) {
        const double value = x.least + step * i;
        chart.x_marks.push_back(
            mark_of(value, rounded_text(value, mark_decimals(step)), chart.x_unit));
    }
}

}  // namespace

std::vector<std::size_t> number_columns(const study_table& table) {
    std::vector<std::size_t> columns;
    for (std::size_t column = 1; column + 1 < table.column_count(); ++column) {
        if (column != table.result_column()) {
            columns.push_back(column);
        }
    }
    return columns;
}

std::optional<study_chart> make_study_chart(const study_table& table, const study_axes& axes,
                                            std::int16_t language) {
    const std::vector<placed_design> dots = dots_of(table, axes);
    if (dots.empty()) {
        return std::nullopt;
    }
    const range colours = range_of(dots, &placed_design::colour);
    study_chart made;
    made.chart.is_of_dots = true;
    made.chart.window_caption = "Study";
    made.chart.file_ending = ". Study.bmp";
    set_axes(table, axes, dots, made.chart);
    add_curves(table, axes, colours, language, made);
    add_dots(table, dots, colours, made);
    if (axes.along) {
        add_links(table, dots, *axes.along, colours, made);
    }
    return made;
}

}  // namespace kvt
