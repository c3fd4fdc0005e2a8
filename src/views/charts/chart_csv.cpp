#include "views/charts/chart_csv.hpp"

#include "base/decimal_mark.hpp"
#include "base/number_text.hpp"

namespace kvt {

namespace {

std::string number_with(double value, char decimal_mark) {
    return with_decimal_mark(number_text(value), decimal_mark);
}

/// "capacity 7.1 – 7.6", with the unit behind it where there is one.
std::string head_of(const chart_curve& curve, const std::string& unit) {
    return unit.empty() ? curve.name : curve.name + " (" + unit + ")";
}

/// "Delivery Pressure (bar);1600 rpm (Lit/min);2000 rpm (Lit/min)"
std::string heads(const result_chart& chart) {
    std::string line = chart.x_title;
    for (const chart_curve& curve : chart.curves) {
        line += ";" + head_of(curve, chart.y_unit);
    }
    return line;
}

/// Point k of every curve.
std::string row_of_point(const result_chart& chart, std::size_t k, char decimal_mark) {
    std::string line = number_with(chart.x_values[k], decimal_mark);
    for (const chart_curve& curve : chart.curves) {
        line += ";" + number_with(curve.values[k] * chart.y_times, decimal_mark);
    }
    return line;
}

/// A point with a place of its own, in the column of its curve.
std::string row_of_dot(const result_chart& chart, std::size_t curve, std::size_t k,
                       char decimal_mark) {
    const chart_curve& dots = chart.curves[curve];
    return number_with(dots.x[k], decimal_mark) + std::string(curve + 1, ';') +
           number_with(dots.values[k] * chart.y_times, decimal_mark) +
           std::string(chart.curves.size() - curve - 1, ';');
}

}  // namespace

void write_chart_csv(const result_chart& chart, char decimal_mark, text_lines& text) {
    text.line(heads(chart));
    for (std::size_t k = 0; k < chart.x_values.size(); ++k) {
        text.line(row_of_point(chart, k, decimal_mark));
    }
    for (std::size_t curve = 0; curve < chart.curves.size(); ++curve) {
        for (std::size_t k = 0; k < chart.curves[curve].x.size(); ++k) {
            text.line(row_of_dot(chart, curve, k, decimal_mark));
        }
    }
}

}  // namespace kvt
